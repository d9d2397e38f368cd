#include "platform/native/posix_process_host.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>

#include "native/child.h"
#include "support/contracts/process_host_contract.h"
#include "support/temp_directory.h"

namespace kestra {
namespace {

std::string makeScript(const TempDirectory& directory, const std::string& name, const std::string& body) {
  std::string path = directory.at(name);
  writeText(path, "#!/bin/sh\n" + body);
  ::chmod(path.c_str(), 0755);
  return path;
}

struct PosixScene {
  std::string program(const std::string& kind) {
    if (kind == "missing") return directory.at("missing");
    if (kind == "succeeds") return "/bin/true";
    if (kind == "lasts") return makeScript(directory, kind, "exec sleep 60\n");
    return makeScript(directory, kind, kind == "fails" ? "exit 3\n" : "kill -SEGV $$\n");
  }

  TempDirectory directory;
  PosixProcessHost host;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Posix, ProcessHostContract, PosixScene);

class PosixProcessHostTest : public testing::Test {
 protected:
  std::string run(const ProcessRequest& request) { return describe(host.run(request, {})); }
  std::string script(const std::string& body) { return makeScript(directory, "script", body); }

  TempDirectory directory;
  PosixProcessHost host;
};

TEST_F(PosixProcessHostTest, passesArgumentsByteForByte) {
  std::string every;
  for (int c = 1; c < 256; ++c) every += static_cast<char>(c);
  const std::vector<std::string> hostile = {"",
                                            " ",
                                            "a b",
                                            "\"quoted\"",
                                            "it's",
                                            "$(touch x)",
                                            "`id`",
                                            "; rm -rf x",
                                            "two\nlines",
                                            "*",
                                            "\\",
                                            "--",
                                            "-x",
                                            "D\xC3\xA4mme",
                                            "\xFF\xFE",
                                            "|&<>",
                                            "%s%n",
                                            every,
                                            std::string(100000, 'x')};
  std::vector<std::string> arguments = {"arguments"};
  arguments.insert(arguments.end(), hostile.begin(), hostile.end());
  std::string wanted;
  for (const std::string& argument : hostile) wanted += std::to_string(argument.size()) + ":" + argument + "\n";
  EXPECT_EQ(run({KESTRA_PROBE, arguments, "", directory.at("out")}), "exit 0");
  EXPECT_EQ(fileText(directory.at("out")), wanted);
}

TEST_F(PosixProcessHostTest, refusesWhatTheSystemCannotHandOverWhole) {
  const std::string zero("a\0b", 3);
  const std::string words = "not started: Invalid argument";
  EXPECT_EQ(run({KESTRA_PROBE, {"arguments", zero}, "", ""}), words);
  EXPECT_EQ(run({zero, {}, "", ""}), words);
  EXPECT_EQ(run({KESTRA_PROBE, {}, zero, ""}), words);
  EXPECT_EQ(run({KESTRA_PROBE, {}, "", zero}), words);
}

TEST_F(PosixProcessHostTest, tellsAFailureToStartFromEveryExitCode) {
  EXPECT_EQ(run({script("exit 127\n"), {}, "", ""}), "exit 127");
  EXPECT_EQ(run({script("exit 126\n"), {}, "", ""}), "exit 126");
  EXPECT_EQ(run({script("no-such-command\n"), {}, "", ""}), "exit 127");
  EXPECT_EQ(run({directory.at("missing"), {}, "", ""}), "not started: No such file or directory");
  EXPECT_EQ(run({"", {}, "", ""}), "not started: No such file or directory");
  EXPECT_EQ(run({directory.path(), {}, "", ""}), "not started: Permission denied");
  EXPECT_EQ(run({"/bin/true", {}, directory.at("missing"), ""}), "not started: No such file or directory");
  EXPECT_EQ(run({"/bin/true", {}, "", directory.at("missing/out")}), "not started: No such file or directory");
  writeText(directory.at("text"), "exit 0\n");
  EXPECT_EQ(run({directory.at("text"), {}, "", ""}), "not started: Permission denied");
  ::chmod(directory.at("text").c_str(), 0755);
  EXPECT_EQ(run({directory.at("text"), {}, "", ""}), "not started: Exec format error") << "no shell makes up for it";
}

TEST_F(PosixProcessHostTest, givesTheProgramAWorldOfItsOwn) {
  const int leaked = ::open("/dev/null", O_RDONLY);  // as by a library that does not think of programs
  ASSERT_GT(leaked, 2);
  const auto before = ::signal(SIGPIPE, SIG_IGN);
  EXPECT_EQ(run({KESTRA_PROBE, {"world"}, directory.path(), directory.at("out")}), "exit 0");
  ::signal(SIGPIPE, before);
  ::close(leaked);
  EXPECT_EQ(fileText(directory.at("out")),
            "directory " + directory.path() + "\nLC_ALL C\nleader yes\ninput ends yes\ndescriptors 0 1 2\nsignals\n");
}

TEST_F(PosixProcessHostTest, collectsOutputAndErrorInAFileThatItEmptiesFirst) {
  writeText(directory.at("out"), std::string(1000, 'x'));
  EXPECT_EQ(run({KESTRA_PROBE, {"output"}, "", directory.at("out")}), "exit 0");
  EXPECT_EQ(fileText(directory.at("out")), "to output\nto error\n");
}

TEST_F(PosixProcessHostTest, putsOutputBehindWhatStandsInTheFileWhereThatIsWanted) {
  writeText(directory.at("out"), "before\n");
  EXPECT_EQ(run({KESTRA_PROBE, {"output"}, "", directory.at("out"), true}), "exit 0");
  EXPECT_EQ(run({KESTRA_PROBE, {"output"}, "", directory.at("out"), true}), "exit 0");
  EXPECT_EQ(fileText(directory.at("out")), "before\nto output\nto error\nto output\nto error\n");
}

TEST_F(PosixProcessHostTest, countsARelativeProgramFromWhereThisProgramStands) {
  script("pwd\n");
  ::mkdir(directory.at("below").c_str(), 0777);
  EXPECT_EQ(exitCodeOfChild([&] {
              if (::chdir(directory.path().c_str()) != 0) return 2;
              const std::string outcome = run({"script", {}, directory.at("below"), "out"});
              return outcome == "exit 0" ? 0 : 1;
            }),
            0);
  EXPECT_EQ(fileText(directory.at("out")), directory.at("below") + "\n");
}

TEST_F(PosixProcessHostTest, startsProgramsWhateverStandardDescriptorsAreClosed) {
  for (const std::vector<int>& closed : {std::vector<int>{0}, {0, 1}, {0, 1, 2}, {1, 2}}) {
    EXPECT_EQ(exitCodeOfChild([&] {
                for (const int number : closed) ::close(number);
                return run({KESTRA_PROBE, {"world"}, "/", directory.at("out")}) == "exit 0" ? 0 : 1;
              }),
              0);
    EXPECT_EQ(fileText(directory.at("out")),
              "directory /\nLC_ALL C\nleader yes\ninput ends yes\ndescriptors 0 1 2\nsignals\n");
  }
}

TEST_F(PosixProcessHostTest, learnsExitCodesEvenWhenStartedWithEndingsIgnored) {
  EXPECT_EQ(exitCodeOfChild([&] {
              ::signal(SIGCHLD, SIG_IGN);
              return run({script("exit 5\n"), {}, "", ""}) == "exit 5" ? 0 : 1;
            }),
            0);
}

TEST_F(PosixProcessHostTest, asksTwentyTimesASecondAndOutlivesAnExceptionOfTheCaller) {
  int asked = 0;
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(describe(host.run({script("sleep 1\n"), {}, "", ""}, [&] { return ++asked > 0; })), "exit 0");
  EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
  EXPECT_GE(asked, 5);
  EXPECT_LE(asked, 22);
  const std::string lasting = script("echo $$ >" + directory.at("pid") + "\nexec sleep 60\n");
  EXPECT_THROW((void)host.run({lasting, {}, "", ""},
                              [&]() -> bool {
                                if (fileText(directory.at("pid")).empty()) return true;
                                throw std::runtime_error("enough");
                              }),
               std::runtime_error);
  const std::string process = fileText(directory.at("pid"));
  EXPECT_FALSE(runs(process.substr(0, process.size() - 1)));
}

TEST_F(PosixProcessHostTest, leavesNoChildBehind) {
  for (int i = 0; i < 5; ++i) EXPECT_EQ(run({"/bin/true", {}, "", ""}), "exit 0");
  EXPECT_EQ(run({directory.at("missing"), {}, "", ""}), "not started: No such file or directory");
  EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
  EXPECT_EQ(errno, ECHILD);
}

}  // namespace
}  // namespace kestra
