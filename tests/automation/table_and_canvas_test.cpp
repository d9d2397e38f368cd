#include <gtest/gtest.h>

#include "automation/driver_desk.h"
#include "support/fake_pictures.h"

namespace kestra {
namespace {

constexpr const char* kDone = "{'ok':true,'value':null}";
constexpr const char* kOutside = "{'ok':false,'error':'gallery.table does not hold this block'}";

class TableVerbs : public testing::Test {
 protected:
  std::string tell(const std::string& verb, const std::string& fields, const std::string& control = "table") {
    return desk.tell("{'do':'" + verb + "','screen':'gallery','control':'" + control + "'" + fields + "}");
  }
  struct Row {
    const char* fields;
    const char* answer;
  };
  void expect(const std::string& verb, std::initializer_list<Row> rows) {
    for (const auto& [fields, answer] : rows) EXPECT_EQ(tell(verb, fields), answer) << fields;
  }
  DriverDesk desk;
};

TEST_F(TableVerbs, writeAndReadBlocksOfCells) {
  expect("setcells", {
                         {",'row':1,'column':0,'values':[['r1','1','2'],['r2','3']]", kDone},
                         {",'row':2,'column':2,'values':[['ä']]", kDone},
                         {",'row':3,'column':3,'values':[]", kDone},
                         {",'row':2,'column':3,'values':[[]]", kDone},
                     });
  EXPECT_EQ(desk.gallery.takeLog(), "cells cells cells cells");
  EXPECT_TRUE(desk.app.state.fileDirty);
  expect("cells", {
                      {"", "{'ok':true,'value':[['','A','B'],['r1','1','2'],['r2','3','ä']]}"},
                      {",'row':1,'column':1", "{'ok':true,'value':[['1']]}"},
                      {",'row':1,'column':1,'rows':2,'columns':2", "{'ok':true,'value':[['1','2'],['3','ä']]}"},
                      {",'rows':1", "{'ok':true,'value':[['','A','B']]}"},
                      {",'row':2", "{'ok':true,'value':[['r2']]}"},
                      {",'column':2", "{'ok':true,'value':[['B']]}"},
                      {",'row':0,'column':0,'rows':0,'columns':3", "{'ok':true,'value':[]}"},
                      {",'row':0,'column':0,'rows':2,'columns':0", "{'ok':true,'value':[[],[]]}"},
                  });
}

TEST_F(TableVerbs, refuseWhatLiesOutside) {
  expect("cells", {
                      {",'row':3,'column':0", kOutside},
                      {",'row':-1,'column':0", kOutside},
                      {",'row':0,'column':2,'columns':2", kOutside},
                      {",'row':2147483647,'column':0,'rows':2147483647", kOutside},
                      {",'row':0,'column':0,'rows':-1", kOutside},
                  });
  expect("setcells", {
                         {",'row':2,'column':2,'values':[['a','b']]", kOutside},
                         {",'row':2,'column':2,'values':[['a'],['b']]", kOutside},
                         {",'row':-1,'column':0,'values':[['a']]", kOutside},
                         {",'row':0,'column':-1,'values':[['a']]", kOutside},
                         {",'row':2147483647,'column':0,'values':[[],[]]", kOutside},
                         {",'row':0,'column':2147483647,'values':[['a','b']]", kOutside},
                     });
  EXPECT_EQ(desk.gallery.takeLog(), "");
  EXPECT_EQ(tell("cells", ""), "{'ok':true,'value':[['','A','B'],['','',''],['','','']]}");
}

TEST_F(TableVerbs, nameTheFieldThatIsMissingOrUnfit) {
  expect("setcells",
         {
             {",'column':0,'values':[]", "{'ok':false,'error':'field \\'row\\' is missing'}"},
             {",'row':0,'values':[]", "{'ok':false,'error':'field \\'column\\' is missing'}"},
             {",'row':0,'column':0", "{'ok':false,'error':'field \\'values\\' is missing'}"},
             {",'row':0,'column':0,'values':'x'", "{'ok':false,'error':'field \\'values\\' must be a list'}"},
             {",'row':0,'column':0,'values':['x']", "{'ok':false,'error':'a row of \\'values\\' must be a list'}"},
             {",'row':0,'column':0,'values':[['x',1]]", "{'ok':false,'error':'a cell of \\'values\\' must be a text'}"},
         });
  expect("cells", {{",'row':'1'", "{'ok':false,'error':'field \\'row\\' must be a whole number'}"}});
  EXPECT_EQ(tell("cells", ""), "{'ok':true,'value':[['','A','B'],['','',''],['','','']]}");
}

TEST_F(TableVerbs, areOfTablesOnly) {
  EXPECT_EQ(tell("cells", "", "text"), "{'ok':false,'error':'gallery.text is no table'}");
  EXPECT_EQ(tell("setcells", "", "list"), "{'ok':false,'error':'gallery.list is no table'}");
  EXPECT_EQ(tell("cursor", "", "canvas"), "{'ok':false,'error':'gallery.canvas is no table'}");
}

TEST_F(TableVerbs, moveTheCursorAndSelect) {
  desk.app.host.show(desk.gallery);
  expect("cursor", {{",'row':2,'column':1", kDone}, {",'row':2,'column':2,'toRow':1,'toColumn':1", kDone}});
  EXPECT_EQ(desk.gallery.takeLog(), "cursor cursor");
  EXPECT_EQ(desk.gallery.table.cursor(), (CellPosition{2, 2}));
  EXPECT_EQ(desk.gallery.table.firstSelected(), (CellPosition{1, 1}));
  EXPECT_EQ(desk.app.host.focus(), &desk.gallery.table);
  expect("cursor",
         {
             {",'row':3,'column':1", "{'ok':false,'error':'gallery.table does not hold this cell'}"},
             {",'row':1,'column':1,'toColumn':3", "{'ok':false,'error':'gallery.table does not hold this cell'}"},
             {",'row':1", "{'ok':false,'error':'field \\'column\\' is missing'}"},
         });
  EXPECT_EQ(desk.gallery.table.cursor(), (CellPosition{2, 2}));
}

class CanvasVerbs : public TableVerbs {
 protected:
  std::string onCanvas(const std::string& verb, const std::string& fields) { return tell(verb, fields, "canvas"); }
};

TEST_F(CanvasVerbs, passTheMouseOnWithItsButton) {
  EXPECT_EQ(onCanvas("mouse", ",'event':'down','button':1,'x':1,'y':2"), kDone);
  EXPECT_EQ(onCanvas("mouse", ",'event':'move','x':-1.5,'y':1e3"), kDone);
  EXPECT_EQ(onCanvas("mouse", ",'event':'up','button':2,'x':0,'y':0"), kDone);
  EXPECT_EQ(onCanvas("mouse", ",'event':'dblclick','button':1,'x':0,'y':0"), kDone);
  EXPECT_EQ(desk.gallery.takeLog(), "down1 move0 up2 twice1");
}

TEST_F(CanvasVerbs, refuseAMouseThatThereIsNot) {
  const char* const table[][2] = {
      {",'event':'wheel','x':0,'y':0", "field \\'event\\' must be down, move, up or dblclick"},
      {",'x':0,'y':0", "field \\'event\\' is missing"},
      {",'event':'down','y':0", "field \\'x\\' is missing"},
      {",'event':'down','x':0,'y':'0'", "field \\'y\\' must be a number"},
      {",'event':'down','button':3,'x':0,'y':0", "field \\'button\\' must be 0, 1 or 2"},
      {",'event':'down','button':-1,'x':0,'y':0", "field \\'button\\' must be 0, 1 or 2"},
  };
  for (const auto& [fields, error] : table) {
    EXPECT_EQ(onCanvas("mouse", fields), "{'ok':false,'error':'" + std::string(error) + "'}") << fields;
  }
  EXPECT_EQ(tell("mouse", ",'event':'down','x':0,'y':0"), "{'ok':false,'error':'gallery.table is no canvas'}");
  EXPECT_EQ(desk.gallery.takeLog(), "");
}

TEST_F(CanvasVerbs, tellTheDrawingCallsUnrounded) {
  CanvasControl& canvas = desk.gallery.canvas;
  canvas.FontBold(true);
  canvas.Cls();
  EXPECT_EQ(onCanvas("canvas", ""), "{'ok':true,'value':[]}");
  canvas.Scale(0, 10, 0.1 + 0.2, -1e-300);
  canvas.moveTo(1, 2);
  canvas.Print("a \"b\"\n");
  canvas.Circle(1, 2, 0.0006, 255);
  canvas.FontSize(8.25);
  canvas.Visible(false);
  EXPECT_EQ(onCanvas("canvas", ""),
            "{'ok':true,'value':[['Scale',0.0,10.0,0.30000000000000004,-1e-300],['Print',1.0,2.0,'a \\'b\\'\\n'],"
            "['Circle',1.0,2.0,0.0006,255],['FontSize',8.25],['Visible',false]]}");
  EXPECT_FALSE(canvas.visible());
  EXPECT_EQ(tell("canvas", ""), "{'ok':false,'error':'gallery.table is no canvas'}");
}

TEST_F(CanvasVerbs, makeNoPictureWithoutARenderer) {
  EXPECT_EQ(onCanvas("image", ",'file':'a.png'"),
            "{'ok':false,'error':'this program was built without the picture renderer'}");
  EXPECT_EQ(tell("image", ",'file':'a.png'"), "{'ok':false,'error':'table is no canvas'}");
}

TEST_F(CanvasVerbs, renderAPictureOfTheSizeThatIsAskedFor) {
  FakePictures pictures;
  desk.app.shell.graphs.context.pictures = &pictures;
  desk.gallery.canvas.Print("here");
  EXPECT_EQ(onCanvas("image", ",'file':'a.svg','width':20,'height':10"), kDone);
  EXPECT_EQ(desk.memory.content("/home/a.svg"), "form 1, 20x10, 1: here");
  EXPECT_EQ(onCanvas("image", ",'file':'a.PNG'"), kDone);
  EXPECT_EQ(desk.memory.content("/home/a.PNG"), "form 0, 800x600, 1: here");
  EXPECT_EQ(onCanvas("image", ""), "{'ok':false,'error':'field \\'file\\' is missing'}");
  EXPECT_EQ(onCanvas("image", ",'file':'a.gif'"),
            "{'ok':false,'error':'a.gif: the name of a picture ends in .png, .svg, .pdf or .bmp'}");
  pictures.fails = true;
  EXPECT_EQ(onCanvas("image", ",'file':'a.png'"), "{'ok':false,'error':'a.png: no colours left'}");
}

TEST_F(CanvasVerbs, leaveAnOldPictureWhereTheNewOneCannotBeWritten) {
  FakePictures pictures;
  desk.app.shell.graphs.context.pictures = &pictures;
  desk.memory.put("/home/a.png", "old");
  desk.files.failEvery("write", FailureKind::full);
  EXPECT_EQ(onCanvas("image", ",'file':'a.png'"), "{'ok':false,'error':'a.png: made to fail'}");
  EXPECT_EQ(desk.memory.content("/home/a.png"), "old");
}

}  // namespace
}  // namespace kestra
