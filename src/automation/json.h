#pragma once

#include <nlohmann/json.hpp>

#include <stdexcept>
#include <string>

namespace kestra {

using Json = nlohmann::ordered_json;

// A request that cannot be carried out: its answer is ok = false with this text.
class RequestError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// The fields of a request by name and the arguments of a call by place, each with a message of its own when it is
// missing or of the wrong type.
class Fields {
 public:
  explicit Fields(const Json& object) : object_(object) {}

  bool has(const char* name) const { return object_.contains(name); }
  const Json& any(const char* name) const;
  const std::string& text(const char* name) const;
  int integer(const char* name) const;
  int integer(const char* name, int otherwise) const;
  double number(const char* name) const;
  const Json& list(const char* name) const;

 private:
  const Json& object_;
};

// The typed value of one piece of JSON; `what` names it in the message of the RequestError.
const std::string& asText(const Json& value, const std::string& what);
int asInteger(const Json& value, const std::string& what);
double asNumber(const Json& value, const std::string& what);
bool asBoolean(const Json& value, const std::string& what);
const Json& asList(const Json& value, const std::string& what);

// One line of JSON; bytes that are no UTF-8 become the replacement character.
std::string oneLine(const Json& value);

// Whether a text nests brackets deeper than `most`.
bool nestsDeeper(std::string_view text, int most);

}  // namespace kestra
