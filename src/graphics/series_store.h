#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace kestra {

// The points of one line of a graph, in single precision.
struct Series {
  std::string SeriesName;
  std::vector<float> PlotX;
  std::vector<float> PlotY;

  std::int16_t PointCount() const { return static_cast<std::int16_t>(PlotX.size()); }
};

// The lines that a graph draws.
class SeriesStore {
 public:
  static constexpr int kSeries = 102;
  static constexpr int kPoints = 30001;

  std::int16_t SeriesCount = 0;  // how many of them the present graph has

  // Begins a graph: so many series, all without name and points.
  void begin(int count);
  // One more series behind the others; its number.
  int addSeries(std::string name);
  // A point at the end of a series; false when it is full. Values beyond single precision become its largest.
  bool add(int series, double x, double y);

  Series& operator()(int series);  // a RuntimeFault outside 0 to 101
  const Series& operator()(int series) const;

 private:
  static std::size_t at(int series);
  std::vector<Series> series_ = std::vector<Series>(kSeries);
};

// The nearest single-precision number; the largest one of its sign beyond their range.
float toSingle(double value);
// The value of the shortest decimal that stands for a single-precision number.
double shortDecimal(float value);

}  // namespace kestra
