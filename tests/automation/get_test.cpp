#include <gtest/gtest.h>

#include "automation/driver_desk.h"

namespace kestra {
namespace {

struct Shown {
  const char* control;
  const char* value;  // the whole of it
};

class Get : public testing::Test {
 protected:
  std::string get(const std::string& control) {
    return desk.tell("{'do':'get','screen':'gallery','control':'" + control + "'}");
  }
  DriverDesk desk;
};

TEST_F(Get, showsEveryKindOfControlWhole) {
  const Shown table[] = {
      {"text", "{'kind':'text','value':'abc','caption':'','visible':true,'enabled':true,'maxLength':5}"},
      {"optNone(0)", "{'kind':'option','value':false,'caption':'None','visible':true,'enabled':true}"},
      {"check", "{'kind':'check','value':false,'caption':'&Check','visible':true,'enabled':true}"},
      {"combo",
       "{'kind':'combo','value':'two','caption':'','visible':true,'enabled':true,'items':['one','two','three'],"
       "'index':1}"},
      {"editable",
       "{'kind':'combo','value':'','caption':'','visible':true,'enabled':true,'items':['x','y'],'index':-1}"},
      {"list", "{'kind':'list','value':'','caption':'','visible':true,'enabled':true,'items':['a','b'],'index':-1}"},
      {"press", "{'kind':'button','value':null,'caption':'&Press','visible':true,'enabled':true}"},
      {"shut", "{'kind':'button','value':null,'caption':'Shut','visible':true,'enabled':false}"},
      {"gone", "{'kind':'button','value':null,'caption':'Gone','visible':false,'enabled':true}"},
      {"accept", "{'kind':'menu','value':null,'caption':'&Accept','visible':true,'enabled':true,'checked':true}"},
      {"label", "{'kind':'label','value':null,'caption':'A label','visible':true,'enabled':true}"},
      {"border", "{'kind':'frame','value':null,'caption':'A frame','visible':true,'enabled':true}"},
      {"table",
       "{'kind':'table','value':'','caption':'','visible':true,'enabled':true,'rows':3,'columns':3,'fixedRows':1,"
       "'fixedColumns':1,'row':1,'column':1}"},
      {"tabs", "{'kind':'tabs','value':0,'caption':'','visible':true,'enabled':true,'captions':['First','Second']}"},
      {"slider", "{'kind':'slider','value':0.0,'caption':'','visible':true,'enabled':true,'min':0.0,'max':10.0}"},
      {"gauge", "{'kind':'gauge','value':0.0,'caption':'','visible':true,'enabled':true,'min':0.0,'max':100.0}"},
      {"canvas", "{'kind':'canvas','value':null,'caption':'','visible':true,'enabled':true,'scale':[0.0,0.0,1.0,1.0]}"},
      {"directory", "{'kind':'directory','value':'','caption':'','visible':true,'enabled':true}"},
      {"PRESS", "{'kind':'button','value':null,'caption':'&Press','visible':true,'enabled':true}"},
  };
  for (const auto& [control, value] : table) {
    EXPECT_EQ(get(control), "{'ok':true,'value':" + std::string(value) + "}") << control;
  }
}

TEST_F(Get, countsTheFrameInWhichAControlStandsAsItsOwn) {
  desk.gallery.border.setVisible(false);
  EXPECT_EQ(get("inner"),
            "{'ok':true,'value':{'kind':'button','value':null,'caption':'Inner','visible':false,'enabled':true}}");
  desk.gallery.border.setVisible(true);
  desk.gallery.inner.setVisible(false);
  EXPECT_EQ(get("inner"),
            "{'ok':true,'value':{'kind':'button','value':null,'caption':'Inner','visible':false,'enabled':true}}");
}

TEST_F(Get, readsAControlWhoseScreenIsNotOnShow) {
  EXPECT_FALSE(desk.gallery.visible());
  EXPECT_EQ(get("label"),
            "{'ok':true,'value':{'kind':'label','value':null,'caption':'A label','visible':true,'enabled':true}}");
  EXPECT_FALSE(desk.gallery.visible());
  EXPECT_TRUE(desk.gallery.loaded());
}

TEST_F(Get, comparesNamesExactly) {
  for (const char* name : {"Text", "text ", "optNone", "optNone(3)", "optNone(00)", "optNone( 0)", ""}) {
    EXPECT_EQ(get(name), "{'ok':false,'error':'gallery has no control named \\'" + std::string(name) + "\\''}");
  }
}

TEST_F(Get, givesBytesThatAreNoTextAsReplacementCharacters) {
  desk.gallery.label.setCaption(
      "a\xff"
      "b");
  EXPECT_EQ(get("label"),
            "{'ok':true,'value':{'kind':'label','value':null,'caption':'a\xef\xbf\xbd"
            "b','visible':true,'enabled':true}}");
}

TEST_F(Get, listsControlsInTheOrderOfTheirMaking) {
  EXPECT_EQ(desk.tell("{'do':'controls','screen':'gallery'}"),
            "{'ok':true,'value':[{'name':'text','kind':'text'},{'name':'several','kind':'text'},"
            "{'name':'optNone(0)','kind':'option'},{'name':'optNone(1)','kind':'option'},"
            "{'name':'optNone(2)','kind':'option'},{'name':'check','kind':'check'},{'name':'combo','kind':'combo'},"
            "{'name':'editable','kind':'combo'},{'name':'list','kind':'list'},{'name':'press','kind':'button'},"
            "{'name':'shut','kind':'button'},{'name':'gone','kind':'button'},{'name':'idle','kind':'button'},"
            "{'name':'accept','kind':'menu'},{'name':'label','kind':'label'},{'name':'border','kind':'frame'},"
            "{'name':'inner','kind':'button'},{'name':'table','kind':'table'},{'name':'tabs','kind':'tabs'},"
            "{'name':'slider','kind':'slider'},{'name':'gauge','kind':'gauge'},{'name':'canvas','kind':'canvas'},"
            "{'name':'directory','kind':'directory'}]}");
  EXPECT_FALSE(desk.gallery.loaded());
}

}  // namespace
}  // namespace kestra
