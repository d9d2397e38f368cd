#pragma once

#include <deque>
#include <string>

#include "base/runtime_fault.h"
#include "controls/simple_controls.h"
#include "controls/text_box.h"
#include "screens/screen_context.h"

namespace kestra {

// A screen that is shown modally: it closes itself, shows another one, and asks.
class ModalScreen : public Screen {
 public:
  ModalScreen(const std::string& name, ScreenContext& context, Screen* next) : Screen(name, "Title of " + name) {
    cmdClose.onClick = [this] { host().unload(*this); };
    cmdAsk.onClick = [this, &context] {
      text.setText(context.ports.boxes.confirm(title(), "Sure?") ? "sure" : "not sure");
    };
    cmdNext.onClick = [this, next] {
      if (next != nullptr) host().showModal(*next);
    };
  }

  TextBox text{*this, "text"};
  Button cmdClose{*this, "cmdClose", "Close"};
  Button cmdAsk{*this, "cmdAsk", "Ask"};
  Button cmdNext{*this, "cmdNext", "Next"};
};

// A screen whose commands ask the user for everything that can be asked; `got` shows what came back.
class Asker : public Screen {
 public:
  explicit Asker(ScreenContext& context)
      : Screen("asker", "Asker"),
        ports_(context.ports),
        second("second", context, nullptr),
        first("first", context, &second) {
    tell.onClick = [this] { ports_.boxes.tell("Title", "Done.", BoxIcon::information); };
    confirm.onClick = [this] { show(ports_.boxes.confirm("Title", "Go on?") ? "Yes" : "No"); };
    three.onClick = [this] {
      const MessageBox box = {"Save", "Save it?", BoxIcon::warning, {BoxButton::yes, BoxButton::no, BoxButton::cancel}};
      show(std::string(captionOf(ports_.boxes.show(box))));
    };
    choice.onClick = [this] {
      const MessageBox box = {"Choice", "Which?", BoxIcon::none, {BoxButton::ok, BoxButton::yes}};
      show(std::string(captionOf(ports_.boxes.show(box))));
    };
    open.onClick = [this] { chooseFiles({FileDialog::Kind::open, "Open it", "All (*.*)|*.*", 2, "a.KSC", false}); };
    openSeveral.onClick = [this] { chooseFiles({FileDialog::Kind::open, "Open them", "", 1, "", true}); };
    save.onClick = [this] { chooseFiles({FileDialog::Kind::save, "Save it", "KSC|*.KSC", 1, "b.KSC", false}); };
    directory.onClick = [this] { show(ports_.dialogs.chooseDirectory("Where", "/start").value_or("cancelled")); };
    color.onClick = [this] {
      const auto answer = ports_.dialogs.chooseColor(255);
      show(answer ? std::to_string(*answer) : "cancelled");
    };
    font.onClick = [this] {
      const auto answer = ports_.dialogs.chooseFont({"Plain", 10, false, true});
      show(!answer ? "cancelled"
                   : answer->name + " " + std::to_string(static_cast<int>(answer->size)) +
                         (answer->bold ? " bold" : "") + (answer->italic ? " italic" : ""));
    };
    print.onClick = [this] { show(ports_.dialogs.choosePrint({1, 2, 3, "LPT1"}) ? "printed" : "cancelled"); };
    beep.onClick = [this] { ports_.beeper.beep(); };
    modal.onClick = [this] { host().showModal(first); };
    fault.onClick = [] { throw RuntimeFault("Type mismatch"); };
    everything.onClick = [this] {
      for (Button* button : {&confirm, &open, &modal, &tell, &beep, &beep, &three}) button->click();
    };
    context.host.enter(*this);
    context.host.enter(first);
    context.host.enter(second);
  }

  Label got{*this, "got"};
  Button tell{*this, "tell", ""};
  Button confirm{*this, "confirm", ""};
  Button three{*this, "three", ""};
  Button choice{*this, "choice", ""};
  Button open{*this, "open", ""};
  Button openSeveral{*this, "openSeveral", ""};
  Button save{*this, "save", ""};
  Button directory{*this, "directory", ""};
  Button color{*this, "color", ""};
  Button font{*this, "font", ""};
  Button print{*this, "print", ""};
  Button beep{*this, "beep", ""};
  Button modal{*this, "modal", ""};
  Button fault{*this, "fault", ""};
  Button everything{*this, "everything", ""};

 private:
  Ports& ports_;

 public:
  ModalScreen second;
  ModalScreen first;

 private:
  void show(const std::string& what) { got.setCaption(what); }
  void chooseFiles(const FileDialog& dialog) {
    const auto answer = ports_.dialogs.chooseFiles(dialog);
    std::string text = answer ? "" : "cancelled";
    if (answer) {
      for (const std::string& file : *answer) text += "<" + file + ">";
    }
    show(text);
  }
};

}  // namespace kestra
