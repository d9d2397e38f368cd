#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "base/numbers.h"

// The text files of an invented dam run, in the layout that the solver prints.
namespace kestra {

// A number at the right end of a field.
inline std::string rightField(double value, std::size_t width) {
  std::string text = decimalNumber(value);
  return std::string(width > text.size() ? width - text.size() : 0, ' ') + text;
}

inline std::string fieldRow(const std::vector<double>& values, std::size_t width) {
  std::string row;
  for (const double value : values) row += rightField(value, width);
  return row + "\n";
}

// A record as the echo shows it: behind a blank, keyword and fields in ten columns each.
inline std::string echoed(const std::vector<std::string>& fields) {
  std::string line = " ";
  for (std::string field : fields) {
    field.resize(10, ' ');
    line += field;
  }
  return line + "\n";
}

// A run by its parts; each may be changed or emptied before the text is made.
struct SampleRun {
  std::string option = echoed({"OPTION", "SIMPLE", "EARTH"});
  std::string echo = echoed({"KESTRA", "01/01/2009", "Larkmoor"}) + echoed({"STROUTE", "1016", "1000", "FEET"}) +
                     echoed({"STRUCTURE", "Larkmoor"}) + echoed({"", "", "1000", "0", "0", "0.5"}) +
                     echoed({"", "", "1010", "0", "20", "3"}) + echoed({"", "", "1026", "0", "", "16"}) +
                     " ENDTABLE\n" + echoed({"UPSTREAM", "3"}) + echoed({"DAMCREST", "10"}) +
                     echoed({"DWNSTREAM", "2.5"});
  std::string crest = echoed({"CRESTPRFL"}) + echoed({"", "0", "1026"}) + echoed({"", "100", "1024"}) +
                      echoed({"", "250", "1025"}) + " ENDTABLE\n";
  std::string tailwater =
      echoed({"TAILWATER"}) + echoed({"", "1000", "0"}) + echoed({"", "1003", "400"}) + " ENDTABLE\n";
  std::string spillways =
      echoed({"ASRATING", "1Bywash", "0"}) + " ENDTABLE\n" + echoed({"ASSURFACE", "2West", "3"}) + " ENDTABLE\n";
  std::string ratings = " Spillway and Overtop Discharge Rating\n elevation\n (ft)\n" +
                        fieldRow({1000, 0, 0, 0, 0, 0, 0}, 12) + fieldRow({1020, 150, 40, 20, 0, 0, 210}, 12) +
                        fieldRow({1026, 180, 300, 90, 0, 700, 1270}, 12) + "\n";
  std::string listing = " Listing of Tabular Data-Generated Volume\n row\n (ft)\n" +
                        listingRow(1, {1000, 0, 0, 0.5, 0, 0.5}) + listingRow(2, {1026, 0, 0, 16, 150, 16}) + "\n";
  std::string crestLine = "DAM CREST ELEVATION " + rightField(1024, 10) + "\n";
  std::vector<std::vector<double>> routing = {{0, 10, 1, 0, 0, 0, 0, 1, 1016, 1016, 1000},
                                              {1.5, 990, 60, 20, 5, 0, 40, 125, 1024.5, 1024.5, 1002},
                                              {4, 100, 50, 10, 0, 0, 0, 60, 1022, 1022, 1001.5}};
  std::string stress = "                   Stress on Vegetated Embankment Slope\n a\n b\n c\n d\n" +
                       stressRow({0, 0, 0, 0, 0, 0, 0}) + stressRow({1.5, 12.5, 3, 80.5, 1.25, 4, 120}) + "\n";
  std::string riprap;
  std::string drawdown;

  static std::string listingRow(int number, const std::vector<double>& values) {
    return rightField(number, 4) + fieldRow(values, 12);
  }
  // Time to effective stress in fields of 12, then 13 for its product with time and 12 for that in percent.
  static std::string stressRow(const std::vector<double>& v) {
    std::string row;
    for (std::size_t i = 0; i < v.size(); ++i) row += rightField(v[i], i == 5 ? 13 : 12);
    return row + "\n";
  }
  static std::string riprapRow(double time, double discharge, double percent) {
    return rightField(time, 12) + rightField(discharge, 18) + rightField(percent, 20) + "\n";
  }
  void makeRiprap() {
    option = echoed({"OPTION", "SIMPLE", "RIPRAP"});
    stress.clear();
    riprap = "Flow on Riprapped Embankment Slope\n a\n b\n" + riprapRow(0, 0, 0) + riprapRow(1.5, 8, 65) +
             riprapRow(4, 2, 20) + "\n";
  }
  void makeDrawdown() {
    drawdown = "Drawdown computations began at 4 hr\nDrawdown  Reservoir\n (hr)\n -----\n" + drawdownRow(10, 1020) +
               drawdownRow(100, 1010) + "\n";
  }
  static std::string drawdownRow(double time, double elevation) {
    return rightField(time, 10) + std::string(74, ' ') + rightField(elevation, 10) + "\n";
  }

  std::string routingText() const {
    std::string text = " Hydrograph Routing\n a\n b\n c\n(hr)\n ----\n";
    for (const auto& row : routing) text += fieldRow(row, 10);
    return text + "\n";
  }
  std::string out() const {
    return "Solver 1.0\n" + echo.substr(0, echo.find('\n') + 1) + option + echo.substr(echo.find('\n') + 1) + crest +
           tailwater + spillways + " ENDRUN\n" + ratings + listing + crestLine + routingText() + stress + riprap +
           drawdown;
  }

  std::string bre = " Breach\n hr\n" + breRow(1.5, 0, 1024, 0, 0, 0) + breRow(1.5, 0, 1024, 0, 0, 0) +
                    breRow(1.5, 0, 1024, 0, 0, 0) + breRow(2, 300, 1020, 4, 15.5, 25) +
                    breRow(3, 900, 1004, 2, 42.5, 21);
  static std::string breRow(double time, double q, double sill, double shear, double width, double unit) {
    return rightField(time, 10) + "  " + fieldRow({q, sill, shear, width, unit}, 12);
  }
  std::string hct = " Headcut\n hr\n" + breRow(1.5, 1024, 120.5, 1000, 24, 3) + breRow(2, 1024, 90, 1000, 24, 12.5);
};

}  // namespace kestra
