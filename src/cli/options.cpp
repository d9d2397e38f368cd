#include "cli/options.h"

#include <CLI/CLI.hpp>
#include <ostream>

#include "cli/graph_command.h"
#include "graphs/graph_catalogue.h"

namespace kestra {
namespace {

constexpr int kWrongUsage = 2;

// What is wrong with a size such as "800x600"; empty: nothing.
std::string sizeFault(const std::string& size) {
  return parseSize(size) ? "" : size + " is no size such as 1200x800, of 1 to 20000 pixels each way";
}

// The command line's grammar, writing into `options`.
struct Grammar {
  explicit Grammar(CliOptions& options);

  CLI::App app{"Overtopping and breach of embankment dams, without a window", "kestra"};
  CLI::App* newProject = app.add_subcommand("new", "make a project directory");
  CLI::App* build = app.add_subcommand("build", "build control files: run their analyses");
  CLI::App* check = app.add_subcommand("check", "check the integrity of control files");
  CLI::App* summary = app.add_subcommand("summary", "print the results of a project's runs");
  CLI::App* drive = app.add_subcommand("drive", "carry out requests, one JSON object a line, from standard input");
  CLI::App* graph = app.add_subcommand("graph", "draw graphs of a finished run, or list them");
  CLI::App* help = app.add_subcommand("help", "tell about the commands");
  std::string helpTopic;
  bool version = false;
};

Grammar::Grammar(CliOptions& options) {
  app.require_subcommand(0, 1);
  for (CLI::App* command : {newProject, build, check, summary, graph, drive, help}) {
    command->fallthrough();
    command->footer("Options of every command: --app-dir DIR, --settings FILE");
  }
  app.add_flag("--version", version, "print the version");
  app.add_option("--app-dir", options.appDirectory, "directory of the external programs")->type_name("DIR");
  app.add_option("--settings", options.settingsFile, "settings file")->type_name("FILE");
  app.add_flag("--yes", options.yes, "answer questions with Yes");
  newProject->add_option("DIR", options.directory, "the directory to make")->required()->type_name("");
  for (CLI::App* command : {build, check}) {
    command->add_option("FILE", options.files, "control files")->required()->type_name("");
  }
  build->add_option("--project", options.project, "project directory; else that of the first file")->type_name("DIR");
  summary->add_option("--project", options.project, "project directory; else the current one")->type_name("DIR");
  summary->add_option("--format", options.format, "form of the summary: text, csv, json or xlsx; text when not given")
      ->check(CLI::IsMember({"text", "csv", "json", "xlsx"}))
      ->type_name("FORM");
  summary->add_flag("--all", options.all, "every instance; else those of highest, lowest and mean measure of a run");
  summary->add_option("-o,--output", options.output, "file to write; else the standard output")->type_name("OUT");
  drive->add_option("CONTROL_FILE", options.controlFile, "the control file to open")->type_name("");
  graph->add_option("FILE", options.controlFile, "the control file of the run")->required()->type_name("");
  auto* list = graph->add_flag("--list", options.list, "list the graphs, and which of them can be drawn");
  auto* numbers = graph->add_option("--graph", options.graphs, "numbers of the graphs, 0 to 21, with commas between");
  numbers->delimiter(',')->check(CLI::Range(0, kGraphs - 1))->type_name("N[,N...]")->excludes(list);
  graph->add_option("--format", options.format, "png, svg, pdf or csv; else by the name of the output")
      ->check(CLI::IsMember({"png", "svg", "pdf", "csv"}))
      ->type_name("FORM")
      ->needs(numbers);
  graph->add_option("--size", options.size, "width and height in pixels, 1200x800 when not given")
      ->check(CLI::Validator([](const std::string& size) { return sizeFault(size); }, "", "size"))
      ->type_name("WxH")
      ->needs(numbers);
  auto* output = graph->add_option("-o,--output", options.output, "file to write; - for the standard output");
  output->type_name("OUT")->needs(numbers);
  numbers->needs(output);
  help->add_option("COMMAND", helpTopic, "the command to tell about")->type_name("");
}

// What is missing beside a command; null: nothing.
const char* faultOf(CliCommand command, const CliOptions& options) {
  const bool draws = options.list || !options.graphs.empty();
  if (command == CliCommand::graph && !draws) return "graph needs --list or --graph";
  const bool toTerminal = options.format == "xlsx" && options.output.empty();
  if (command == CliCommand::summary && toTerminal) return "summary --format xlsx needs -o";
  return nullptr;
}

// Help on the whole program; a grammar that has parsed a command would tell of that command alone.
std::string generalHelp() {
  CliOptions unused;
  return Grammar(unused).app.help();
}

int tellHelp(const Grammar& grammar, std::ostream& out, std::ostream& err) {
  if (grammar.helpTopic.empty()) {
    out << generalHelp();
    return 0;
  }
  const auto named = [&grammar](const CLI::App* command) { return command->get_name() == grammar.helpTopic; };
  for (const CLI::App* command : grammar.app.get_subcommands(named)) {
    out << command->help("kestra");
    return 0;
  }
  err << "kestra: no command named " << grammar.helpTopic << '\n';
  return kWrongUsage;
}

}  // namespace

std::optional<CliOptions> parseCommandLine(int argc, const char* const* argv, std::ostream& out, std::ostream& err,
                                           int& exitCode) {
  CliOptions options;
  Grammar grammar(options);
  exitCode = 0;
  try {
    grammar.app.parse(argc, argv);
  } catch (const CLI::CallForHelp&) {
    for (const CLI::App* command : grammar.app.get_subcommands()) {
      out << command->help("kestra");
      return std::nullopt;
    }
    out << generalHelp();
    return std::nullopt;
  } catch (const CLI::Error& fault) {
    err << "kestra: " << fault.what() << "\nRun kestra help for the commands.\n";
    exitCode = kWrongUsage;
    return std::nullopt;
  }
  if (grammar.version) {
    out << "Kestra B " << KESTRA_VERSION << '\n';
    return std::nullopt;
  }
  if (grammar.help->parsed()) {
    exitCode = tellHelp(grammar, out, err);
    return std::nullopt;
  }
  const std::pair<const CLI::App*, CliCommand> commands[] = {
      {grammar.newProject, CliCommand::newProject}, {grammar.build, CliCommand::build},
      {grammar.check, CliCommand::check},           {grammar.summary, CliCommand::summary},
      {grammar.graph, CliCommand::graph},           {grammar.drive, CliCommand::drive}};
  for (const auto& [word, command] : commands) {
    if (!word->parsed()) continue;
    if (const char* fault = faultOf(command, options)) {
      err << "kestra: " << fault << "\nRun kestra help for the commands.\n";
      exitCode = kWrongUsage;
      return std::nullopt;
    }
    options.command = command;
    if (command == CliCommand::summary && options.format.empty()) options.format = "text";
    return options;
  }
  err << generalHelp();
  exitCode = kWrongUsage;
  return std::nullopt;
}

}  // namespace kestra
