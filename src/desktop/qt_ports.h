#pragma once

#include "platform/dialogs.h"
#include "platform/message_boxes.h"
#include "platform/small_ports.h"

class QWidget;

// The ports of a program with windows.
namespace kestra {

class QtMessageBoxes : public MessageBoxes {
 public:
  BoxButton show(const MessageBox& box) override;
};

class QtDialogs : public Dialogs {
 public:
  std::optional<std::vector<std::string>> chooseFiles(const FileDialog& dialog) override;
  std::optional<std::string> chooseDirectory(const std::string& title, const std::string& start) override;
  std::optional<std::uint32_t> chooseColor(std::uint32_t start) override;
  std::optional<FontChoice> chooseFont(const FontChoice& start) override;
  std::optional<PrintChoice> choosePrint(const PrintChoice& start) override;
};

class QtClipboard : public Clipboard {
 public:
  std::string text() override;
  void setText(const std::string& text) override;
  void setPicture(const std::string& bitmap) override;
};

class QtBeeper : public Beeper {
 public:
  void beep() override;
};

class QtEventPump : public EventPump {
 public:
  void pump() override;
};

}  // namespace kestra
