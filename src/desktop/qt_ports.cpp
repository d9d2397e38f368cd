#include "desktop/qt_ports.h"

#include <QApplication>
#include <QClipboard>
#include <QColorDialog>
#include <QFileDialog>
#include <QFontDialog>
#include <QImage>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <array>

#include "desktop/qt_text.h"

namespace kestra {
namespace {

QMessageBox::Icon iconOf(BoxIcon icon) {
  constexpr std::array kIcons = {QMessageBox::NoIcon, QMessageBox::Information, QMessageBox::Warning,
                                 QMessageBox::Critical, QMessageBox::Question};
  return kIcons[static_cast<std::size_t>(icon)];
}

QMessageBox::StandardButton buttonOf(BoxButton button) {
  constexpr std::array kButtons = {QMessageBox::Ok, QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel};
  return kButtons[static_cast<std::size_t>(button)];
}

// "Hydrographs (*.hyd)|*.hyd|All|*.*" as the toolkit has it; every letter case of an ending fits.
QStringList nameFilters(const std::string& filter) {
  const QStringList parts = shown(filter).split(QLatin1Char('|'));
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    QString label = parts[i].section(QLatin1Char('('), 0, 0).trimmed();
    QStringList patterns = parts[i + 1].split(QLatin1Char(';'), Qt::SkipEmptyParts);
    for (QString& pattern : patterns)
      if (pattern == QLatin1String("*.*")) pattern = QStringLiteral("*");
    filters.append(QStringLiteral("%1 (%2)").arg(label, patterns.join(QLatin1Char(' '))));
  }
  return filters;
}

std::uint32_t numberOf(const QColor& color) {
  return static_cast<std::uint32_t>(color.red()) | static_cast<std::uint32_t>(color.green()) << 8U |
         static_cast<std::uint32_t>(color.blue()) << 16U;
}

QWidget* parentWindow() {
  return QApplication::activeWindow();
}

}  // namespace

BoxButton QtMessageBoxes::show(const MessageBox& box) {
  QMessageBox window(iconOf(box.icon), shown(box.title), shown(box.text), QMessageBox::NoButton, parentWindow());
  window.setTextFormat(Qt::PlainText);
  window.setTextInteractionFlags(Qt::TextSelectableByMouse);
  for (const BoxButton button : box.buttons) window.addButton(buttonOf(button));
  window.setEscapeButton(buttonOf(refusal(box)));
  const int pressed = window.exec();
  for (const BoxButton button : box.buttons)
    if (buttonOf(button) == pressed) return button;
  return refusal(box);
}

std::optional<std::vector<std::string>> QtDialogs::chooseFiles(const FileDialog& dialog) {
  QFileDialog window(parentWindow(), shown(dialog.title));
  const bool save = dialog.kind == FileDialog::Kind::save;
  window.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  window.setFileMode(save             ? QFileDialog::AnyFile
                     : dialog.several ? QFileDialog::ExistingFiles
                                      : QFileDialog::ExistingFile);
  window.setOption(QFileDialog::DontConfirmOverwrite);  // whoever asks for the name asks about that as well
  const QStringList filters = nameFilters(dialog.filter);
  window.setNameFilters(filters);
  if (dialog.filterIndex >= 1 && dialog.filterIndex <= filters.size())
    window.selectNameFilter(filters[dialog.filterIndex - 1]);
  if (!dialog.defaultName.empty()) window.selectFile(shown(dialog.defaultName));
  if (window.exec() != QDialog::Accepted) return std::nullopt;
  std::vector<std::string> names;
  for (const QString& name : window.selectedFiles()) names.push_back(told(name));
  return names;
}

std::optional<std::string> QtDialogs::chooseDirectory(const std::string& title, const std::string& start) {
  const QString chosen = QFileDialog::getExistingDirectory(parentWindow(), shown(title), shown(start));
  if (chosen.isEmpty()) return std::nullopt;
  return told(chosen);
}

std::optional<std::uint32_t> QtDialogs::chooseColor(std::uint32_t start) {
  const QColor chosen = QColorDialog::getColor(colorOf(start), parentWindow());
  if (!chosen.isValid()) return std::nullopt;
  return numberOf(chosen);
}

std::optional<FontChoice> QtDialogs::chooseFont(const FontChoice& start) {
  QFont font(shown(start.name));
  font.setPointSizeF(start.size);
  font.setBold(start.bold);
  font.setItalic(start.italic);
  bool taken = false;
  const QFont chosen = QFontDialog::getFont(&taken, font, parentWindow());
  if (!taken) return std::nullopt;
  return FontChoice{told(chosen.family()), chosen.pointSizeF(), chosen.bold(), chosen.italic()};
}

std::optional<PrintChoice> QtDialogs::choosePrint(const PrintChoice& start) {
  QPrinter printer;
  printer.setCopyCount(start.copies);
  if (start.firstPage > 0) printer.setFromTo(start.firstPage, start.lastPage);
  QPrintDialog window(&printer, parentWindow());
  if (window.exec() != QDialog::Accepted) return std::nullopt;
  const std::string device =
      told(printer.outputFileName().isEmpty() ? printer.printerName() : printer.outputFileName());
  return PrintChoice{printer.fromPage(), printer.toPage(), printer.copyCount(), device};
}

std::string QtClipboard::text() {
  return told(QApplication::clipboard()->text());
}

void QtClipboard::setText(const std::string& text) {
  QApplication::clipboard()->setText(shown(text));
}

void QtClipboard::setPicture(const std::string& bitmap) {
  QImage picture;
  if (picture.loadFromData(QByteArray(bitmap.data(), static_cast<qsizetype>(bitmap.size())), "BMP"))
    QApplication::clipboard()->setImage(picture);
}

void QtBeeper::beep() {
  QApplication::beep();
}

void QtEventPump::pump() {
  QApplication::processEvents();
}

}  // namespace kestra
