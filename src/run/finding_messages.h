#pragma once

#include <span>
#include <string_view>

// The messages of the checkers' findings: that of code n stands at n - 1.
namespace kestra {

std::span<const std::string_view> damMessages();       // of KestraIntCheck.exe
std::span<const std::string_view> spillwayMessages();  // of IntCheck.exe

}  // namespace kestra
