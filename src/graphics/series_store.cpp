#include "graphics/series_store.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "base/numbers.h"
#include "base/runtime_fault.h"

namespace kestra {

float toSingle(double value) {
  constexpr double kLargest = std::numeric_limits<float>::max();
  return static_cast<float>(std::clamp(value, -kLargest, kLargest));
}

double shortDecimal(float value) {
  return lenientNumber(singleNumber(value));
}

std::size_t SeriesStore::at(int series) {
  if (series < 0 || series >= kSeries) throw RuntimeFault("subscript out of range");
  return static_cast<std::size_t>(series);
}

Series& SeriesStore::operator()(int series) {
  return series_[at(series)];
}

const Series& SeriesStore::operator()(int series) const {
  return series_[at(series)];
}

void SeriesStore::begin(int count) {
  for (Series& series : series_) {
    series.SeriesName.clear();
    series.PlotX.clear();
    series.PlotY.clear();
  }
  SeriesCount = static_cast<std::int16_t>(count);
}

int SeriesStore::addSeries(std::string name) {
  const int number = SeriesCount;
  (*this)(number).SeriesName = std::move(name);
  ++SeriesCount;
  return number;
}

bool SeriesStore::add(int series, double x, double y) {
  Series& line = (*this)(series);
  if (line.PlotX.size() >= kPoints) return false;
  line.PlotX.push_back(toSingle(x));
  line.PlotY.push_back(toSingle(y));
  return true;
}

}  // namespace kestra
