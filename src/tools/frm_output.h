#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "controls/screen.h"

namespace kestra {

class frmProjectInformation;

// A helper that is never on show: routines on job texts, the inputs of the spillway program.
class frmOutput : public Screen {
 public:
  explicit frmOutput(frmProjectInformation& project) : Screen("frmOutput", "Output"), project_(project) {}

  // A part of a job: what one of its routings belongs to.
  struct Element {
    std::int16_t number = 0;
    std::string name;
    std::string kind;        // "1" a structure, "2" a watershed; empty: not told
    std::string kindNumber;  // the number that the job gives to it
    bool operator==(const Element&) const = default;
  };

  // Takes a job text apart, consuming it. The title of a TORVE, VERN2 or QUIL job goes to the project information
  // screen; each part of the job, which begins with a SAVMOV record of number 0, 31 or 101, to an entry of `runs`. A
  // text without such records leaves them as they are. RuntimeFault for more parts than entries.
  void GenerateTopoGraph(std::string& text, std::span<std::string> runs);
  const std::vector<Element>& elements() const { return elements_; }  // of the text taken apart last

  // A stack of 16-bit numbers. Push is false, and keeps nothing, when kMostPushed are on it.
  static constexpr std::size_t kMostPushed = 100;
  bool Push(std::int16_t value);
  std::optional<std::int16_t> Pop();

  void forget();  // the stack and the elements

 private:
  void takeTitle(std::string_view line);
  void beginElement(std::string_view line);

  frmProjectInformation& project_;
  std::vector<std::int16_t> stack_;
  std::vector<Element> elements_;
};

}  // namespace kestra
