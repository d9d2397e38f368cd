#include "results/dam_digest.h"

#include <algorithm>

#include "base/fields.h"
#include "base/text.h"
#include "results/breach_history.h"
#include "results/dam_output_reader.h"
#include "results/result_files.h"
#include "results/round_to.h"

namespace kestra {

std::string digestLine(std::string_view text) {
  if (trim(text).empty()) return std::string(kNotAvailable);
  if (charCount(text) > kDigestWidth) text.remove_prefix(text.find_first_not_of(' '));
  return std::string(charsFrom(text, 0, kDigestWidth));
}

std::string damDigestText(const DigestFields& fields) {
  std::string text;
  for (const std::string& field : fields) text.append(digestLine(field)).append(kCrLf);
  return text;
}

Status ParseDamOutput(FileSystem& files, const std::string& filePath, DigestFields& digestFields) {
  digestFields = {};
  {
    const auto output = readResultFile(files, withExtension(filePath, "OUT"));
    if (!output) return output.failure();
    digestFields = readDamOutput(output.value());
  }
  const auto history = readResultFile(files, withExtension(filePath, "BRE"));
  if (!history && !history.failedAs(FailureKind::notFound)) return history.failure();
  if (history) digestFields[kSlopeDischarge - 1] = RoundTo(highestUnitDischarge(history.value()), 1);
  return writeResultFile(files, withExtension(filePath, "DIS"), damDigestText(digestFields));
}

}  // namespace kestra
