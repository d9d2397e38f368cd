#include "cli/graph_command.h"

#include <ostream>

#include "base/numbers.h"
#include "base/paths.h"
#include "base/text.h"
#include "platform/files.h"

namespace kestra {
namespace {

constexpr int kFailed = 1;
constexpr int kWrongUsage = 2;
constexpr PictureSize kUsualSize = {1200, 800};

// Where the pictures or tables of a command go.
class Output {
 public:
  Output(Application& application, const CliOptions& options, std::ostream& out, std::ostream& err)
      : files_(application.ports.files),
        path_(options.output),
        several_(options.graphs.size() > 1),
        out_(out),
        err_(err) {}

  // Writes what belongs to one graph, or, without a number, to all of them.
  bool write(const std::string& bytes, std::optional<int> number) {
    if (path_ == "-") {
      out_ << bytes;
      return true;
    }
    const Status written = writeWholeFile(files_, number && several_ ? numbered(*number) : path_, bytes);
    if (!written) err_ << "kestra: " << written.failure().path << ": " << written.failure().reason << '\n';
    return static_cast<bool>(written);
  }
  bool fail(const std::string& reason) {
    err_ << "kestra: " << reason << '\n';
    return false;
  }

 private:
  std::string numbered(int number) const {
    const std::size_t name = path_.size() - ParsePathName(path_).size();
    std::size_t point = path_.rfind('.');
    if (point == std::string::npos || point <= name) point = path_.size();
    return path_.substr(0, point) + "-" + std::to_string(number) + path_.substr(point);
  }

  FileSystem& files_;
  const std::string& path_;
  bool several_;
  std::ostream& out_;
  std::ostream& err_;
};

std::string formatOf(const CliOptions& options) {
  return toLower(options.format.empty() ? options.output.substr(options.output.rfind('.') + 1) : options.format);
}

// Draws a graph for so many columns of pixels; false, told, when there is nothing to draw.
bool draw(frmOutputGraph& screen, int number, int columns, const TextMetrics& metrics, Output& output) {
  CanvasControl& canvas = screen.Pic1(number);
  canvas.setMetrics(&metrics);
  canvas.setPixelColumns(columns);
  screen.ReDrawGraph(number);
  canvas.setMetrics(nullptr);
  if (screen.isDrawn(number)) return true;
  return output.fail("graph " + std::to_string(number) + ": " + screen.notice(number));
}

bool writePictures(Application& application, const CliOptions& options, PictureForm form, Output& output) {
  PictureMaker* pictures = application.shell.graphs.context.pictures;
  if (pictures == nullptr) return output.fail("this program was built without the picture renderer");
  const PictureSize size = options.size.empty() ? kUsualSize : *parseSize(options.size);
  frmOutputGraph& screen = application.shell.graphs.output;
  const TextMetrics& metrics = pictures->metrics(size);
  const int columns = form == PictureForm::pdf ? 4 * size.width : size.width;
  bool done = true;
  std::vector<const CanvasLog*> pages;
  const auto make = [&](const std::vector<const CanvasLog*>& drawings, std::optional<int> number) {
    const Result<std::string> bytes = pictures->make(drawings, form, size);
    return bytes ? output.write(bytes.value(), number) : output.fail(bytes.failure().reason);
  };
  for (const int number : options.graphs) {
    if (!draw(screen, number, columns, metrics, output)) {
      done = false;
    } else if (form == PictureForm::pdf) {
      pages.push_back(&screen.Pic1(number).log());
    } else {
      done = make({&screen.Pic1(number).log()}, number) && done;
    }
  }
  return (pages.empty() || make(pages, std::nullopt)) && done;
}

bool writeTables(frmOutputGraph& screen, const CliOptions& options, Output& output) {
  bool done = true;
  for (const int number : options.graphs) {
    const auto csv = screen.csvOf(number);
    const bool written = csv ? output.write(*csv, number)
                             : output.fail("graph " + std::to_string(number) + ": " + noticeOf(graphEntry(number)));
    done = done && written;
  }
  return done;
}

int list(frmOutputGraph& screen, std::ostream& out) {
  for (int number = 0; number < kGraphs; ++number) {
    screen.ReDrawGraph(number);
    out << (number < 10 ? " " : "") << number << "  " << graphEntry(number).title
        << (screen.isDrawn(number) ? "" : "  (not available)") << '\n';
  }
  return 0;
}

}  // namespace

std::optional<PictureSize> parseSize(const std::string& text) {
  const std::size_t cross = text.find('x');
  if (cross == std::string::npos) return std::nullopt;
  const auto width = wholeNumber(text.substr(0, cross));
  const auto height = wholeNumber(text.substr(cross + 1));
  const auto fits = [](const auto& pixels) { return pixels && *pixels >= 1 && *pixels <= kMostPixels; };
  if (!fits(width) || !fits(height)) return std::nullopt;
  return PictureSize{static_cast<int>(*width), static_cast<int>(*height)};
}

int drawGraphs(Application& application, const CliOptions& options, std::ostream& out, std::ostream& err) {
  FileSystem& files = application.ports.files;
  const std::string path = absolutePath(options.controlFile, files.currentDirectory());
  const Result<FileStatus> found = files.status(path);
  if (!found) {
    err << "kestra: " << options.controlFile << ": " << found.failure().reason << '\n';
    return kFailed;
  }
  frmOutputGraph& screen = application.shell.graphs.output;
  screen.OpenFile(path);
  if (options.list) return list(screen, out);
  Output output(application, options, out, err);
  const std::string format = formatOf(options);
  if (format == "csv") return writeTables(screen, options, output) ? 0 : kFailed;
  const auto form = pictureForm(format);
  if (!form) {
    output.fail(options.output + ": give the form by --format, or a name that ends in .png, .svg, .pdf or .csv");
    err << "Run kestra help for the commands.\n";
    return kWrongUsage;
  }
  return writePictures(application, options, *form, output) ? 0 : kFailed;
}

}  // namespace kestra
