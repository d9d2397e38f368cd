#include "control/companion_spillways.h"

#include <algorithm>

#include "base/text.h"
#include "control/screen_fields.h"

namespace kestra {
namespace {

// What of a text that was entered comes back: the text itself, or what the file gives for it where that is the same but
// for blanks around it and an end that is cut off.
const std::string& asRead(const std::string& entered, const std::string& read) {
  constexpr std::size_t kWidths[] = {9, 10, 50};
  if (entered == read || trim(entered) == read) return read;
  const auto isCut = [&](std::size_t width) { return trim(charsFrom(entered, 0, width)) == read; };
  const bool cut = charCount(entered) > kWidths[0] && std::any_of(std::begin(kWidths), std::end(kWidths), isCut);
  return cut && !read.empty() ? read : entered;
}

// Makes the texts of `entered` those that were read, where they are the same but for what the file cuts.
template <class Texts>
void takeRead(Texts& entered, const Texts& read) {
  for (std::size_t i = 0; i < entered.size(); ++i) entered[i] = asRead(entered[i], read[i]);
}

template <class Row>
void takeReadRows(std::vector<Row>& entered, const std::vector<Row>& read) {
  for (std::size_t i = 0; i < std::min(entered.size(), read.size()); ++i) takeRead(entered[i], read[i]);
}

AuxProfile profileAsRead(AuxProfile entered, const AuxProfile& read) {
  for (const StoredField& field : storedFields()) {
    entered.*field.text = asRead(entered.*field.text, read.*field.text);
  }
  takeReadRows(entered.points, read.points);
  takeReadRows(entered.reaches, read.reaches);
  for (std::size_t i = 0; i < entered.hydroDist.size(); ++i) {
    takeRead(entered.hydroDist[i].parameters, read.hydroDist[i].parameters);
  }
  return entered;
}

AuxMaterial materialAsRead(AuxMaterial entered, const AuxMaterial& read) {
  takeRead(entered.values, read.values);
  takeReadRows(entered.points, read.points);
  for (std::size_t i = 0; i < entered.distributions.size(); ++i) {
    takeRead(entered.distributions[i].parameters, read.distributions[i].parameters);
  }
  return entered;
}

bool sameMaterials(const AuxMaterials& a, const AuxMaterials& b) {
  if (a.count != b.count) return false;
  for (int number = 1; number <= a.count + 2; ++number) {
    if (a.material(number) != b.material(number)) return false;
  }
  return true;
}

}  // namespace

Json keptSpillway(const SpillwayView& entered, const SpillwayView& read, bool numbersAsTheyAre) {
  if (numbersAsTheyAre) {
    const bool same = entered.profile == read.profile && sameMaterials(entered.materials, read.materials);
    return same ? Json() : spillwayJson(entered.profile, entered.materials);
  }
  const AuxProfile profile = profileAsRead(entered.profile, read.profile);
  AuxMaterials materials = entered.materials;
  for (int number = 1; number <= std::min(materials.count, read.materials.count) + 2; ++number) {
    materials.material(number) = materialAsRead(materials.material(number), read.materials.material(number));
  }
  if (profile == read.profile && sameMaterials(materials, read.materials)) return nullptr;
  return spillwayJson(profile, materials);
}

}  // namespace kestra
