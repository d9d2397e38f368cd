#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <chrono>
#include <fstream>
#include <sstream>
#include <thread>

#include "platform/native/posix_file_system.h"
#include "platform/native/posix_process_host.h"
#include "platform/native/system_ports.h"
#include "run/run_desk.h"
#include "support/temp_directory.h"

// Builds over real files with solvers that are shell scripts, run by the real process host.
namespace kestra {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const std::string kControl = lines({"KESTRA    01/01/2009Dam", "ENDRUN", "QUIL      02/09/20021", "ENDJOB", "ENDRUN"});
// The file without its extension; ".OUT" and so on go behind.
const std::string kStem = "stem=${1%.*}\n";
const std::string kDigest = "printf 'a\\nb\\nc\\nd\\ne\\n' >\"$stem.DIS\"\n";

struct RealMachine {
  TempDirectory directory;
  std::string app = make("app dir");
  std::string project = make("my project");
  PosixFileSystem files;
  PosixProcessHost processes;
  SystemClock clock;

  std::string make(const std::string& name) const {
    ::mkdir(directory.at(name).c_str(), 0777);
    return directory.at(name);
  }
};

struct StubDesk : RealMachine, RunFixture {
  std::string before = files.currentDirectory();

  StubDesk() : RunFixture(files, processes, clock, app) {
    state.projectDir = project;
    (void)files.changeDirectory(project);
    put(project + "/other.OUT", "other");
    put(project + "/other/other1_0.DIS", "other");
    solver("TorveSim.exe", kStem + kDigest);
  }
  ~StubDesk() { (void)files.changeDirectory(before); }

  static void put(const std::string& path, const std::string& text) {
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    std::ofstream(path, std::ios::binary) << text;
  }
  static std::string text(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream all;
    all << file.rdbuf();
    return file ? all.str() : "(none)";
  }
  void solver(const std::string& name, const std::string& body) const {
    put(app + "/" + name, "#!/bin/sh\n" + body);
    ::chmod((app + "/" + name).c_str(), 0755);
  }
  bool build(const std::string& name = "dam.KSC", bool showProgress = false) {
    state.currentFile = project + "/" + name;
    put(state.currentFile, kControl);
    const bool built = pipeline.BuildMyFiles(showProgress);
    EXPECT_EQ(text(project + "/other.OUT"), "other");
    EXPECT_EQ(text(project + "/other/other1_0.DIS"), "other");
    return built;
  }
  std::string at(const std::string& name) const { return project + "/" + name; }
  // What stands in the forty lines of the digest, none for "N/A".
  std::string digest() const {
    std::istringstream all(text(at("dam.DIS")));
    std::string values;
    for (std::string line; std::getline(all, line);) {
      if (line != "N/A\r") values += line.substr(0, line.find('\r')) + ";";
    }
    return values;
  }
  std::vector<std::string> takeBoxes() {
    std::vector<std::string> texts;
    for (const MessageBox& box : boxes.shown) texts.push_back(box.text);
    boxes.shown.clear();
    return texts;
  }
};

class StubSolvers : public testing::Test, public StubDesk {};

TEST_F(StubSolvers, runWithBlanksInEveryPath) {
  solver("KestraSim.exe", kStem + "pwd\necho \"$1\"\necho done >\"$stem.OUT\"\n");
  solver("TorveSim.exe", kStem + kDigest + "echo graph >dam1_0.DG1\n");
  EXPECT_TRUE(build("my dam.KSC"));
  EXPECT_EQ(text(at("my dam.OUT")), "done\n");
  EXPECT_THAT(text(at("my dam.log")),
              HasSubstr(project + "\n" + at("my dam.KSC") + "\n\r\n-- KestraSim.exe ended with"));
  EXPECT_EQ(text(at("my dam/my dam1_0.DIS")), lines({"", "a", "b", "c", "d", "N/A", "e"}));
  EXPECT_THAT(takeBoxes(), IsEmpty());
  EXPECT_THAT(told, IsEmpty());
}

TEST_F(StubSolvers, getNamesOfEveryKindWholeAndNoShellSeesThem) {
  solver("KestraSim.exe", kStem + "echo \"$#\" >\"$stem.OUT\"\n");
  for (const char* name : {"-dam.KSC", "\"dam\".KSC", "it's.KSC", "$(touch x).KSC", "a;touch x.KSC", "D\xC3\xA4mme.KSC",
                           "a\\b.KSC", "two\nlines.KSC", "%s.KSC", "*.KSC"}) {
    EXPECT_TRUE(build(name)) << name;
    EXPECT_EQ(text(at(std::string(name).substr(0, std::string(name).size() - 4) + ".OUT")), "1\n") << name;
    EXPECT_THAT(takeBoxes(), IsEmpty()) << name;
  }
  EXPECT_FALSE(exists(files, at("x")));
}

TEST_F(StubSolvers, thatCannotBeStartedAreNamedWithTheirPlace) {
  struct Case {
    const char* reason;
    std::function<void()> prepare;
  };
  const std::string path = app + "/KestraSim.exe";
  const Case cases[] = {
      {"No such file or directory", [&] { std::filesystem::remove(path); }},
      {"Permission denied", [&] { put(path, "#!/bin/sh\n"); }},
      {"Exec format error",
       [&] {
         ::chmod(path.c_str(), 0755);
         put(path, "echo\n");
       }},
  };
  for (const Case& c : cases) {
    told.clear();
    c.prepare();
    EXPECT_TRUE(build()) << c.reason;
    const std::string message = "KestraSim.exe could not be started from " + app + ": " + c.reason + ".";
    EXPECT_THAT(told, ElementsAre(message));
    EXPECT_THAT(text(at("dam.log")), HasSubstr("-- " + message));
    EXPECT_THAT(takeBoxes(), IsEmpty());
    EXPECT_EQ(digest(), "(none);");
  }
}

TEST_F(StubSolvers, thatFailAreToldInTheLogAndTheBuildGoesOn) {
  struct Case {
    const char* body;
    const char* message;
  };
  for (const Case& c : {Case{"exit 3\n", "KestraSim.exe ended with exit code 3."},
                        Case{"kill -SEGV $$\n", "KestraSim.exe was ended by SIGSEGV."}}) {
    told.clear();
    solver("KestraSim.exe", c.body);
    EXPECT_TRUE(build()) << c.body;
    EXPECT_THAT(told, ElementsAre(c.message));
    EXPECT_TRUE(exists(files, at("dam/dam1_0.DIS")));
  }
}

TEST_F(StubSolvers, thatPrintMegabytesFillTheLogOnly) {
  solver("KestraSim.exe", "head -c 5000000 /dev/zero\nhead -c 1000000 /dev/zero >&2\n");
  EXPECT_TRUE(build());
  EXPECT_GT(text(at("dam.log")).size(), 6000000U);
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

TEST_F(StubSolvers, thatLeaveNothingOrRubbishGiveTheDigestThatTheirLinesAllow) {
  struct Case {
    const char* body;
    const char* digest;
  };
  const Case cases[] = {
      {"", "(none);"},
      {": >\"$stem.OUT\"\n", "0;0;"},
      {"echo something else >\"$stem.OUT\"\n", "0;0;"},
      {"printf 'Hydrograph Routing\\n\\n (hr)\\n' >\"$stem.OUT\"\n", "0;0;"},
      {"printf 'Hydrograph Routing\\n (hr)\\n ---\\n         0         1         5' >\"$stem.OUT\"\n", "5;0;0;"},
      {"printf 'Hydrograph Routing\\n (hr)\\n ---\\n         0         1       NaN\\n' >\"$stem.OUT\"\n", ""},
      {"printf 'Hydrograph Routing\\n (hr)\\n ---\\n         0**********%s\\n' '**********' >\"$stem.OUT\"\n", ""},
  };
  for (const Case& c : cases) {
    solver("KestraSim.exe", kStem + c.body);
    EXPECT_TRUE(build()) << c.body;
    if (*c.digest != 0) {
      EXPECT_EQ(digest(), c.digest) << c.body;
    }
    EXPECT_EQ(digest().find("nan"), std::string::npos);
    EXPECT_THAT(takeBoxes(), IsEmpty()) << c.body;
  }
}

TEST_F(StubSolvers, mayLeaveATableOfAMillionRows) {
  solver("KestraSim.exe",
         kStem +
             "{ printf 'Hydrograph Routing\\n (hr)\\n ---\\n'\n"
             "awk 'BEGIN { for (i = 0; i < 1000000; ++i) printf \"%10.3f%10.1f%10.1f\\n\", i, 1, i % 7 }'\n"
             "} >\"$stem.OUT\"\n");
  EXPECT_TRUE(build());
  EXPECT_THAT(digest(), testing::StartsWith("6;"));
}

TEST_F(StubSolvers, thatNeverEndAreStoppedByTheUserWithAllThatTheyStarted) {
  solver("KestraSim.exe", "sleep 600 &\necho $$ $! >pids.new\nmv pids.new pids\nwhile :; do sleep 1; done\n");
  events.onPump = [this] {
    if (exists(files, at("pids"))) progress.cmdStop.click();
  };
  const auto start = std::chrono::steady_clock::now();
  EXPECT_FALSE(build("dam.KSC", true));
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
  EXPECT_EQ(pipeline.whyNot(), "Stopped while KestraSim.exe ran.");
  EXPECT_THAT(text(at("dam.log")), HasSubstr("-- Stopped while KestraSim.exe ran."));
  std::istringstream pids(text(at("pids")));
  for (std::string pid; pids >> pid;) {
    // A killed process may need a moment to go.
    const auto gone = [&pid] {
      const std::string stat = text("/proc/" + pid + "/stat");
      return stat == "(none)" || stat.find(") Z") != std::string::npos || stat.find(") X") != std::string::npos;
    };
    for (int i = 0; i < 1000 && !gone(); ++i) std::this_thread::sleep_for(std::chrono::milliseconds(10));
    EXPECT_TRUE(gone()) << pid;
  }
  EXPECT_FALSE(exists(files, at("dam")));
}

TEST_F(StubSolvers, mayRemoveTheProjectUnderTheBuild) {
  solver("KestraSim.exe", "rm -rf \"$PWD\"\n");
  state.currentFile = at("dam.KSC");
  put(state.currentFile, kControl);
  EXPECT_FALSE(pipeline.BuildMyFiles(false));
  EXPECT_EQ(pipeline.whyNot(), at("dam") + ": No such file or directory");
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

TEST_F(StubSolvers, iterateOverRealFiles) {
  solver("KestraSim.exe",
         kStem +
             "echo $(basename \"$1\") >>tried\n"
             "{ printf 'Hydrograph Routing\\n (hr)\\n ---\\n'\n"
             "printf '%10s%70s%10s\\n' 0 '' $(case $stem in *dam5) echo 110;; *) echo 111;; esac); } >\"$stem.OUT\"\n");
  state.currentFile = at("dam.KSC");
  put(state.currentFile, lines({record({"HYD", "Storm", "1", "0"}) + "1C",
                                record({"", "", "0", "50", "100", "50", "0"}), "ENDTABLE", "ENDRUN"}));
  EXPECT_TRUE(pipeline.BuildMyFiles(false));
  EXPECT_EQ(text(at("tried")), "dam5.V2D\ndam9.V2D\n");
  EXPECT_EQ(text(at("dam.OUT")), text(at("dam9.OUT")));
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

}  // namespace
}  // namespace kestra
