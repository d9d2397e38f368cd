#include "automation/json.h"

#include <limits>

namespace kestra {
namespace {

std::string fieldNamed(const char* name) {
  return "field \"" + std::string(name) + "\"";
}

}  // namespace

const Json& Fields::any(const char* name) const {
  const auto at = object_.find(name);
  if (at == object_.end()) throw RequestError(fieldNamed(name) + " is missing");
  return *at;
}

const std::string& Fields::text(const char* name) const {
  return asText(any(name), fieldNamed(name));
}

int Fields::integer(const char* name) const {
  return asInteger(any(name), fieldNamed(name));
}

int Fields::integer(const char* name, int otherwise) const {
  return has(name) ? integer(name) : otherwise;
}

double Fields::number(const char* name) const {
  return asNumber(any(name), fieldNamed(name));
}

const Json& Fields::list(const char* name) const {
  return asList(any(name), fieldNamed(name));
}

const std::string& asText(const Json& value, const std::string& what) {
  if (!value.is_string()) throw RequestError(what + " must be a text");
  return value.get_ref<const std::string&>();
}

int asInteger(const Json& value, const std::string& what) {
  const auto inRange = [&value] {
    const double number = value.get<double>();
    return number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max() &&
           number == static_cast<double>(static_cast<int>(number));
  };
  if (!value.is_number() || !inRange()) throw RequestError(what + " must be a whole number");
  return value.get<int>();
}

double asNumber(const Json& value, const std::string& what) {
  if (!value.is_number()) throw RequestError(what + " must be a number");
  return value.get<double>();
}

bool asBoolean(const Json& value, const std::string& what) {
  if (!value.is_boolean()) throw RequestError(what + " must be true or false");
  return value.get<bool>();
}

const Json& asList(const Json& value, const std::string& what) {
  if (!value.is_array()) throw RequestError(what + " must be a list");
  return value;
}

std::string oneLine(const Json& value) {
  return value.dump(-1, ' ', false, Json::error_handler_t::replace);
}

bool nestsDeeper(std::string_view text, int most) {
  int depth = 0;
  bool inText = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (inText) {
      if (c == '\\') ++i;
      inText = c != '"';
    } else if (c == '"') {
      inText = true;
    } else if (c == '[' || c == '{') {
      if (++depth > most) return true;
    } else if (c == ']' || c == '}') {
      --depth;
    }
  }
  return false;
}

}  // namespace kestra
