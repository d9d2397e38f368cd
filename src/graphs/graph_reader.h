#pragma once

#include <string>

#include "graphics/scaling.h"
#include "graphics/series_store.h"
#include "graphs/run_files.h"

// The readers of the output graphs: each fills the series of a graph from the files of a run.
namespace kestra {

// How a reader went.
struct Reading {
  enum class Outcome {
    drawn,      // there is something to draw
    missing,    // a file, a section or all rows are missing
    noHeadcut,  // the run has formed no headcut
    fileError   // a file is there and cannot be read; `reason` says why
  };
  Outcome outcome = Outcome::missing;
  std::string reason;
};

struct GraphRequest {
  const RunFiles& run;
  int column = 0;       // of the table that is read, by the count of that table's reader
  SeriesStore& series;  // comes empty
  View& extents;        // comes all 0
};

using GraphReader = Reading (*)(const GraphRequest&);

Reading DrawHydrographs(const GraphRequest& graph);     // graph 0
Reading DrawHeadGraph(const GraphRequest& graph);       // 1: column of the routing table
Reading DrawHydrograph(const GraphRequest& graph);      // 2, 20: column of the routing table
Reading DrawProfileGraph(const GraphRequest& graph);    // 3
Reading DrawStressGraph(const GraphRequest& graph);     // 4
Reading DrawDamGraph(const GraphRequest& graph);        // 5
Reading DrawStructureGraph(const GraphRequest& graph);  // 6, 7: column 4 area, 3 volume
Reading DrawRatingGraph(const GraphRequest& graph);     // 8, 21: column 2 principal spillway, 8 tailwater
Reading DrawAuxRatingGraph(const GraphRequest& graph);  // 9
Reading DrawAllRatingGraph(const GraphRequest& graph);  // 10
Reading DrawDischargeGraph(const GraphRequest& graph);  // 11
Reading DrawHCTgraph(const GraphRequest& graph);        // 18: column of the headcut history, fields of ten
Reading DrawBREgraph(const GraphRequest& graph);        // 19: column of the breach history, fields of ten

// What the readers share.
enum class Fit {
  fromZero,  // an axis from 0 to the largest value
  toData     // from the smallest value to the largest
};
// Sets the extents to those of all points; `drawn`, or `missing` when there is none.
Reading fitted(const GraphRequest& graph, Fit x, Fit y);

// Adds the series "Breach" of a column of the breach history, of 12 from `firstColumn` on, over the time; nothing where
// there is no history, or no row in it.
void addBreach(const RunFiles& run, SeriesStore& series, int firstColumn);

// The text of the run's output; empty when there is none.
std::string outputText(const RunFiles& run);

}  // namespace kestra
