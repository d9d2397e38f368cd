#include "cli/graph_command.h"

#include <gtest/gtest.h>

#include <sstream>

#include "support/fake_pictures.h"
#include "support/sample_run.h"
#include "support/scripted_desk.h"

namespace kestra {
namespace {

struct GraphCommand : testing::Test, RunningDesk {
  GraphCommand() {
    shell.graphs.context.pictures = &pictures;
    options.controlFile = "dam.KSC";
    options.output = "/home/a.png";
    const SampleRun run;
    memory.put("/home/dam.KSC", "KESTRA    01/01/2009Larkmoor\n");
    memory.put("/home/dam.OUT", run.out());
  }
  int draw(std::vector<int> graphs) {
    options.graphs = std::move(graphs);
    out.str("");
    err.str("");
    return drawGraphs(app, options, out, err);
  }

  FakePictures pictures;
  CliOptions options;
  std::ostringstream out;
  std::ostringstream err;
};

TEST(ASizeOfAPicture, isTwoNumbersOfPixels) {
  EXPECT_EQ(parseSize("1200x800")->width, 1200);
  EXPECT_EQ(parseSize("1x20000")->height, 20000);
  for (const char* text : {"", "x", "1200", "1200x", "x800", "0x800", "800x0", "20001x1", "-1x5", "1.5x2", "1x2x3"}) {
    EXPECT_FALSE(parseSize(text)) << text;
  }
}

TEST_F(GraphCommand, drawsAGraphIntoAFile) {
  EXPECT_EQ(draw({0}), 0);
  EXPECT_EQ(memory.content("/home/a.png"), "form 0, 1200x800, 1: Hydrographs 0 100 2");
  options.size = "30x20";
  options.format = "svg";
  EXPECT_EQ(draw({0}), 0);
  EXPECT_EQ(memory.content("/home/a.png"), "form 1, 30x20, 1: Hydrographs 0 100 200 ");
  EXPECT_EQ(out.str() + err.str(), "");
}

TEST_F(GraphCommand, numbersTheFilesOfSeveralGraphs) {
  EXPECT_EQ(draw({0, 10}), 0);
  EXPECT_TRUE(memory.content("/home/a-0.png"));
  EXPECT_TRUE(memory.content("/home/a-10.png"));
  EXPECT_FALSE(memory.content("/home/a.png"));
  options.output = "/home/plain";
  options.format = "csv";
  EXPECT_EQ(draw({3, 20}), 0);
  EXPECT_TRUE(memory.content("/home/plain-3"));
}

TEST_F(GraphCommand, putsSeveralGraphsIntoOnePdf) {
  options.output = "/home/a.PDF";
  EXPECT_EQ(draw({0, 3, 10}), 0);
  EXPECT_EQ(memory.content("/home/a.PDF"), "form 2, 1200x800, 3: Hydrographs 0 100 2");
}

TEST_F(GraphCommand, writesToTheStandardOutput) {
  options.output = "-";
  options.format = "csv";
  EXPECT_EQ(draw({3}), 0);
  EXPECT_EQ(out.str(), "Station (ft),Crest: Elevation (ft)\r\n0,1026\r\n100,1024\r\n250,1025\r\n");
}

TEST_F(GraphCommand, tellsWhichGraphsCannotBeDrawnAndDrawsTheOthers) {
  EXPECT_EQ(draw({18, 0, 12}), 1);
  EXPECT_EQ(err.str(),
            "kestra: graph 18: Headcut Position Graph Not Available\n"
            "kestra: graph 12: Spillway Geology Graph Not Available\n");
  EXPECT_TRUE(memory.content("/home/a-0.png"));
  EXPECT_FALSE(memory.content("/home/a-18.png"));
  options.output = "/home/b.pdf";
  EXPECT_EQ(draw({18}), 1);
  EXPECT_FALSE(memory.content("/home/b.pdf"));
  options.format = "csv";
  EXPECT_EQ(draw({18}), 1);
  EXPECT_EQ(err.str(), "kestra: graph 18: Headcut Position Graph Not Available\n");
}

TEST_F(GraphCommand, tellsWhatElseIsInItsWay) {
  options.output = "/home/a.gif";
  EXPECT_EQ(draw({0}), 2);
  EXPECT_EQ(err.str(),
            "kestra: /home/a.gif: give the form by --format, or a name that ends in .png, .svg, .pdf or .csv\n"
            "Run kestra help for the commands.\n");
  options.output = "/none/a.png";
  EXPECT_EQ(draw({0}), 1);
  EXPECT_EQ(err.str(), "kestra: /none: No such file or directory\n");
  options.output = "/home/a.png";
  pictures.fails = true;
  EXPECT_EQ(draw({0}), 1);
  EXPECT_EQ(err.str(), "kestra: no colours left\n");
  shell.graphs.context.pictures = nullptr;
  EXPECT_EQ(draw({0}), 1);
  EXPECT_EQ(err.str(), "kestra: this program was built without the picture renderer\n");
  options.controlFile = "none.KSC";
  EXPECT_EQ(draw({0}), 1);
  EXPECT_EQ(err.str(), "kestra: none.KSC: No such file or directory\n");
  EXPECT_FALSE(memory.content("/home/a.png"));
}

TEST_F(GraphCommand, listsTheGraphs) {
  options.list = true;
  EXPECT_EQ(draw({}), 0);
  const std::string list = out.str();
  EXPECT_TRUE(list.starts_with(" 0  Hydrographs\n 1  Maximum Overtopping Head\n"));
  EXPECT_NE(list.find("\n12  Spillway Geology  (not available)\n"), std::string::npos);
  EXPECT_NE(list.find("\n18  Headcut Position  (not available)\n"), std::string::npos);
  EXPECT_TRUE(list.ends_with("\n21  Tailwater Rating\n"));
}

}  // namespace
}  // namespace kestra
