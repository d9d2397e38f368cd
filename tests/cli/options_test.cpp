#include "cli/options.h"

#include <gtest/gtest.h>

#include <sstream>

namespace kestra {
namespace {

struct Parsed {
  std::optional<CliOptions> options;
  int exitCode = -1;
  std::string out;
  std::string err;
};

Parsed parse(std::vector<const char*> words) {
  words.insert(words.begin(), "kestra");
  Parsed parsed;
  std::ostringstream out;
  std::ostringstream err;
  parsed.options = parseCommandLine(static_cast<int>(words.size()), words.data(), out, err, parsed.exitCode);
  parsed.out = out.str();
  parsed.err = err.str();
  return parsed;
}

constexpr const char* kGeneral =
    "Overtopping and breach of embankment dams, without a window\n"
    "Usage: kestra [OPTIONS] [SUBCOMMAND]\n"
    "\n"
    "Options:\n"
    "  -h,--help                   Print this help message and exit\n"
    "  --version                   print the version\n"
    "  --app-dir DIR               directory of the external programs\n"
    "  --settings FILE             settings file\n"
    "  --yes                       answer questions with Yes\n"
    "\n"
    "Subcommands:\n"
    "  new                         make a project directory\n"
    "  build                       build control files: run their analyses\n"
    "  check                       check the integrity of control files\n"
    "  summary                     print the results of a project's runs\n"
    "  drive                       carry out requests, one JSON object a line, from standard input\n"
    "  graph                       draw graphs of a finished run, or list them\n"
    "  help                        tell about the commands\n"
    "\n";
constexpr const char* kNew =
    "make a project directory\n"
    "Usage: kestra new [OPTIONS] DIR\n"
    "\n"
    "Positionals:\n"
    "  DIR REQUIRED                the directory to make\n"
    "\n"
    "Options:\n"
    "  -h,--help                   Print this help message and exit\n"
    "\n"
    "Options of every command: --app-dir DIR, --settings FILE\n";
constexpr const char* kBuild =
    "build control files: run their analyses\n"
    "Usage: kestra build [OPTIONS] FILE...\n"
    "\n"
    "Positionals:\n"
    "  FILE ... REQUIRED           control files\n"
    "\n"
    "Options:\n"
    "  -h,--help                   Print this help message and exit\n"
    "  --project DIR               project directory; else that of the first file\n"
    "\n"
    "Options of every command: --app-dir DIR, --settings FILE\n";
constexpr const char* kDrive =
    "carry out requests, one JSON object a line, from standard input\n"
    "Usage: kestra drive [OPTIONS] [CONTROL_FILE]\n"
    "\n"
    "Positionals:\n"
    "  CONTROL_FILE                the control file to open\n"
    "\n"
    "Options:\n"
    "  -h,--help                   Print this help message and exit\n"
    "\n"
    "Options of every command: --app-dir DIR, --settings FILE\n";

constexpr const char* kGraph =
    "draw graphs of a finished run, or list them\n"
    "Usage: kestra graph [OPTIONS] FILE\n"
    "\n"
    "Positionals:\n"
    "  FILE REQUIRED               the control file of the run\n"
    "\n"
    "Options:\n"
    "  -h,--help                   Print this help message and exit\n"
    "  --list Excludes: --graph    list the graphs, and which of them can be drawn\n"
    "  --graph N[,N...]:INT in [0 - 21] ... Needs: --output Excludes: --list\n"
    "                              numbers of the graphs, 0 to 21, with commas between\n"
    "  --format FORM:{png,svg,pdf,csv} Needs: --graph\n"
    "                              png, svg, pdf or csv; else by the name of the output\n"
    "  --size WxH Needs: --graph   width and height in pixels, 1200x800 when not given\n"
    "  -o,--output OUT Needs: --graph\n"
    "                              file to write; - for the standard output\n"
    "\n"
    "Options of every command: --app-dir DIR, --settings FILE\n";

struct Telling {
  std::vector<const char*> words;
  int exitCode;
  std::string out;
  std::string err;
};

TEST(CommandLine, tellsTheVersionAndHelpAndWhatIsWrong) {
  const auto wrong = [](const std::string& why) { return "kestra: " + why + "\nRun kestra help for the commands.\n"; };
  const Telling table[] = {
      {{"--version"}, 0, "Kestra B " KESTRA_VERSION "\n", ""},
      {{"--version", "drive"}, 0, "Kestra B " KESTRA_VERSION "\n", ""},
      {{"--help"}, 0, kGeneral, ""},
      {{"-h"}, 0, kGeneral, ""},
      {{"help"}, 0, kGeneral, ""},
      {{"help", "new"}, 0, kNew, ""},
      {{"new", "--help"}, 0, kNew, ""},
      {{"new", "a", "-h"}, 0, kNew, ""},
      {{"help", "drive"}, 0, kDrive, ""},
      {{"help", "build"}, 0, kBuild, ""},
      {{"--settings", "s", "help", "drive"}, 0, kDrive, ""},
      {{"drive", "--help"}, 0, kDrive, ""},
      {{"help", "graph"}, 0, kGraph, ""},
      {{"graph"}, 2, "", wrong("FILE is required")},
      {{"graph", "a"}, 2, "", wrong("graph needs --list or --graph")},
      {{"graph", "a", "--graph", "0"}, 2, "", wrong("--graph requires --output")},
      {{"graph", "a", "--list", "-o", "b"}, 2, "", wrong("--output requires --graph")},
      {{"graph", "a", "--graph", "22", "-o", "b"}, 2, "", wrong("--graph: Value 22 not in range 0 to 21")},
      {{"graph", "a", "--graph", "0,x", "-o", "b"}, 2, "", wrong("--graph: Value x not in range 0 to 21")},
      {{"graph", "a", "--graph", "0", "-o", "b", "--format", "gif"},
       2,
       "",
       wrong("--format: gif not in {png,svg,pdf,csv}")},
      {{"graph", "a", "--graph", "0", "-o", "b", "--size", "0x5"},
       2,
       "",
       wrong("--size: 0x5 is no size such as 1200x800, of 1 to 20000 pixels each way")},
      {{"help", "dance"}, 2, "", "kestra: no command named dance\n"},
      {{}, 2, "", kGeneral},
      {{"--yes"}, 2, "", kGeneral},
      {{"dance"}, 2, "", wrong("The following argument was not expected: dance")},
      {{"New", "a"}, 2, "", wrong("The following arguments were not expected: a New")},
      {{"new"}, 2, "", wrong("DIR is required")},
      {{"new", "a", "b"}, 2, "", wrong("The following argument was not expected: b")},
      {{"new", "-a"}, 2, "", wrong("DIR is required")},
      {{"build"}, 2, "", wrong("FILE is required")},
      {{"build", "--project", "p"}, 2, "", wrong("FILE is required")},
      {{"check"}, 2, "", wrong("FILE is required")},
      {{"check", "a", "--project", "p"}, 2, "", wrong("The following argument was not expected: --project")},
      {{"drive", "a", "b"}, 2, "", wrong("The following argument was not expected: b")},
      {{"drive", "--nothing"}, 2, "", wrong("The following argument was not expected: --nothing")},
      {{"drive", "--app-dir"}, 2, "", wrong("--app-dir: 1 required DIR missing")},
      {{"drive", "--settings", "a", "--settings", "b"}, 2, "", wrong("--settings: At Most 1 required but received 2")},
  };
  for (const auto& [words, exitCode, out, err] : table) {
    const Parsed parsed = parse(words);
    EXPECT_FALSE(parsed.options) << err;
    EXPECT_EQ(parsed.exitCode, exitCode);
    EXPECT_EQ(parsed.out, out);
    EXPECT_EQ(parsed.err, err);
  }
}

TEST(CommandLine, takesOptionsBeforeAndBehindTheCommand) {
  for (const auto& words : {std::vector<const char*>{"--app-dir", "/a", "--settings", "/s", "--yes", "new", "d"},
                            {"new", "d", "--app-dir", "/a", "--settings", "/s", "--yes"},
                            {"--yes", "new", "--settings=/s", "d", "--app-dir=/a"}}) {
    const Parsed parsed = parse(words);
    ASSERT_TRUE(parsed.options) << parsed.err;
    EXPECT_EQ(parsed.options->command, CliCommand::newProject);
    EXPECT_EQ(parsed.options->directory, "d");
    EXPECT_EQ(parsed.options->appDirectory, "/a");
    EXPECT_EQ(parsed.options->settingsFile, "/s");
    EXPECT_TRUE(parsed.options->yes);
    EXPECT_EQ(parsed.out + parsed.err, "");
  }
}

TEST(CommandLine, takesOneFileOrMoreToBuildAndToCheck) {
  struct Row {
    std::vector<const char*> words;
    CliCommand command;
    std::vector<std::string> files;
    std::string project;
  };
  const Row table[] = {{{"build", "a.KSC"}, CliCommand::build, {"a.KSC"}, ""},
                       {{"build", "a", "b c", "a"}, CliCommand::build, {"a", "b c", "a"}, ""},
                       {{"build", "--project", "p", "a", "b"}, CliCommand::build, {"a", "b"}, "p"},
                       {{"--yes", "build", "a", "--project", "p"}, CliCommand::build, {"a"}, "p"},
                       {{"check", "a", "b"}, CliCommand::check, {"a", "b"}, ""},
                       {{"check", "--", "-a"}, CliCommand::check, {"-a"}, ""}};
  for (const Row& row : table) {
    const Parsed parsed = parse(row.words);
    ASSERT_TRUE(parsed.options) << parsed.err;
    EXPECT_EQ(parsed.options->command, row.command);
    EXPECT_EQ(parsed.options->files, row.files);
    EXPECT_EQ(parsed.options->project, row.project);
  }
}

TEST(CommandLine, takesAProjectAndAFormForTheSummary) {
  const Parsed plain = parse({"summary"});
  ASSERT_TRUE(plain.options) << plain.err;
  EXPECT_EQ(plain.options->command, CliCommand::summary);
  EXPECT_EQ(plain.options->project, "");
  EXPECT_EQ(plain.options->format, "text");
  EXPECT_FALSE(plain.options->all);
  for (const char* format : {"text", "csv", "json"}) {
    const Parsed given = parse({"summary", "--project", "p", "--format", format, "--all"});
    ASSERT_TRUE(given.options) << given.err;
    EXPECT_EQ(given.options->project, "p");
    EXPECT_EQ(given.options->format, format);
    EXPECT_TRUE(given.options->all);
  }
  EXPECT_EQ(parse({"summary", "--format", "sheet"}).exitCode, 2);
  EXPECT_EQ(parse({"summary", "--format", "xlsx", "-o", "a.xlsx"}).options->output, "a.xlsx");
  EXPECT_EQ(parse({"summary", "--format", "xlsx"}).err,
            "kestra: summary --format xlsx needs -o\nRun kestra help for the commands.\n");
}

TEST(CommandLine, leavesPathsAsTheyStand) {
  for (const char* path : {"a b", "\"a.KSC\"", "'a'", "[a]", "{}", "a=b", "%%", "~", "help", "drive", "\n", "\xff", " ",
                           "a,b", "@a", "#", "ä\\ö"}) {
    const Parsed made = parse({"new", path});
    ASSERT_TRUE(made.options) << path << made.err;
    EXPECT_EQ(made.options->directory, path);
    const Parsed driven = parse({"drive", path});
    ASSERT_TRUE(driven.options) << path << driven.err;
    EXPECT_EQ(driven.options->command, CliCommand::drive);
    EXPECT_EQ(driven.options->controlFile, path);
  }
  EXPECT_EQ(parse({"drive", "--", "-a.KSC"}).options->controlFile, "-a.KSC");
}

TEST(CommandLine, canDoWithoutAControlFile) {
  const Parsed parsed = parse({"drive"});
  ASSERT_TRUE(parsed.options);
  EXPECT_EQ(parsed.options->controlFile + parsed.options->appDirectory + parsed.options->settingsFile, "");
  EXPECT_FALSE(parsed.options->yes);
}

TEST(CommandLine, takesTheGraphsThatAreToBeDrawn) {
  const Parsed parsed = parse({"graph", "a.KSC", "--graph", "3,0,21", "--format", "csv", "--size", "12x8", "-o", "b"});
  ASSERT_TRUE(parsed.options) << parsed.err;
  EXPECT_EQ(parsed.options->command, CliCommand::graph);
  EXPECT_EQ(parsed.options->controlFile, "a.KSC");
  EXPECT_EQ(parsed.options->graphs, (std::vector<int>{3, 0, 21}));
  EXPECT_EQ(parsed.options->format, "csv");
  EXPECT_EQ(parsed.options->size, "12x8");
  EXPECT_EQ(parsed.options->output, "b");
  EXPECT_TRUE(parse({"graph", "--list", "a.KSC"}).options->list);
}

}  // namespace
}  // namespace kestra
