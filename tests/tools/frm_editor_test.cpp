#include "tools/frm_editor.h"

#include <gtest/gtest.h>

#include "base/runtime_fault.h"
#include "support/input_desk.h"

namespace kestra {
namespace {

struct TextEditor : testing::Test, InputDesk {
  frmEditor editor{base};

  TextEditor() {
    host.enter(editor);
    files.put("/p/dam.OUT", "a\r\nb\r\n");
    files.put("/p/dam.bre", "c\n");
  }
};

TEST_F(TextEditor, showsAFileOnItsPage) {
  EXPECT_EQ(editor.title(), "Text Editor: Untitled");
  editor.OpenFile("/p/dam.OUT", frmEditor::kDamOutput);
  EXPECT_EQ(host.shown().front(), &editor);
  EXPECT_TRUE(state.window(4));
  EXPECT_EQ(editor.title(), "Text Editor: [ /p/dam.OUT ]");
  EXPECT_EQ(editor.txtKestraEditor.text(), "a\r\nb\r\n");
  EXPECT_TRUE(editor.txtKestraEditor.visible());
  editor.OpenFile("/p/dam.BRE", 5);
  EXPECT_EQ(editor.txtBREEditor.text(), "c\n");
  EXPECT_FALSE(editor.txtKestraEditor.visible());
}

TEST_F(TextEditor, namesTheFileOfThePageOnShow) {
  editor.OpenFile("/p/dam.OUT", frmEditor::kDamOutput);
  editor.tbEditor.userSelect(0);
  EXPECT_EQ(editor.title(), "Text Editor: Untitled");
  EXPECT_TRUE(editor.txtLSPEditor.visible());
  editor.tbEditor.userSelect(frmEditor::kDamOutput);
  EXPECT_EQ(editor.title(), "Text Editor: [ /p/dam.OUT ]");
  editor.mnuExit.click();
  EXPECT_FALSE(state.window(4));
  EXPECT_EQ(editor.txtKestraEditor.text(), "");
  EXPECT_EQ(editor.title(), "Text Editor: Untitled");
}

TEST_F(TextEditor, refusesKeysWithAWarning) {
  editor.OpenFile("/p/dam.OUT", frmEditor::kDamOutput);
  const std::pair<TextBox*, const char*> pages[] = {
      {&editor.txtLSPEditor, "QUIL .lsp"},   {&editor.txtLHIEditor, "QUIL .lhi"},
      {&editor.txtOutEditor, "QUIL .out"},   {&editor.txtKestraEditor, "Kestra .out"},
      {&editor.txtHCTEditor, "Kestra .HCT"}, {&editor.txtBREEditor, "Kestra .BRE"}};
  for (const auto& [page, kind] : pages) {
    const std::string before = page->text();
    page->userKey({U'x', {}});
    page->userReplace("x");
    EXPECT_EQ(takeBoxes(),
              std::vector<std::string>{std::string("Edit: Warning! You cannot change the ") + kind + " files"});
    EXPECT_EQ(page->text(), before);
  }
}

TEST_F(TextEditor, tellsOfAFileThatCannotBeShownAndKeepsWhatIsThere) {
  editor.OpenFile("/p/dam.OUT", frmEditor::kDamOutput);
  editor.OpenFile("/p/gone.OUT", frmEditor::kDamOutput);
  EXPECT_EQ(takeBoxes(), std::vector<std::string>{"QUIL IDE: No such File"});
  files.setMode("/p/dam.bre", false, true);
  editor.OpenFile("/p/dam.bre", 5);
  EXPECT_EQ(takeBoxes(), std::vector<std::string>{"Error Message: /p/dam.bre: Permission denied"});
  EXPECT_EQ(editor.title(), "Text Editor: [ /p/dam.OUT ]");
  for (const int page : {-1, 6}) EXPECT_THROW(editor.OpenFile("/p/dam.OUT", page), RuntimeFault) << page;
}

}  // namespace
}  // namespace kestra
