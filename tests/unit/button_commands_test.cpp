// Button's two create forms, its pictures, and ButtonStyle.
#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

#include "commands/picture_catalogue.h"
#include "core_sandbox.h"

namespace tamrix::testing {
namespace {

using Texts = std::vector<std::string>;

HeadlessControl& ButtonAt(ProgramRun& run, std::size_t index) {
  return dynamic_cast<HeadlessControl&>(
      *run.interpreter.Objects().Family(ObjectKind::Button).entries.at(index).control);
}

// A file in the program's folder (the runs' ProgramPath is /tmp/).
class ProgramFolderFile {
 public:
  explicit ProgramFolderFile(std::string name) : name_(std::move(name)) { std::ofstream("/tmp/" + name_) << "x"; }
  ~ProgramFolderFile() { std::remove(("/tmp/" + name_).c_str()); }
  const std::string& Name() const { return name_; }

 private:
  std::string name_;
};

struct CaptionCase {
  const char* statement;
  const char* caption;
  int height;  // 0: the template's size is kept
  int width;
};

class FormACaptions : public ::testing::TestWithParam<CaptionCase> {};

TEST_P(FormACaptions, TakeTheThirdElementUnlessALaterOneIsGiven) {
  ProgramRun run;
  run.Run(Lines({GetParam().statement}));
  const HeadlessControl& button = ButtonAt(run, 0);
  EXPECT_EQ(button.caption, GetParam().caption);
  EXPECT_EQ(button.height, GetParam().height);
  EXPECT_EQ(button.width, GetParam().width);
  EXPECT_TRUE(run.Boxes().empty());
}

INSTANTIATE_TEST_SUITE_P(
    ButtonTest, FormACaptions,
    ::testing::Values(CaptionCase{"Button Ok1, 2, 10, \"Save\"", "Save", 0, 0},
                      CaptionCase{"Button Ok1, 2, 10", "OK", 0, 0},
                      CaptionCase{"Button Ok1, 2, 10, \"\"", "OK", 0, 0},
                      CaptionCase{"Button Ok1, 2, 10, 2, 12, \"Go\"", "Go", 28, 96},
                      CaptionCase{"Button Ok1, 2, 10, 1.5, 10", "", 21, 80},
                      CaptionCase{"Button Ok1, 2, 10, 3, 5, , , \"tip\"", "", 42, 40}));

TEST(ButtonTest, FormAPlacesStylesAndShowsTheButton) {
  ProgramRun run;
  run.Run(Lines({"Button B, 2.5, 10, 2, 12, \"Go\", \"\", \"Press me\""}));
  const HeadlessControl& button = ButtonAt(run, 0);
  EXPECT_EQ(button.top, 35);
  EXPECT_EQ(button.left, 80);
  EXPECT_EQ(button.style, 0);
  EXPECT_EQ(button.tip, "Press me");
  EXPECT_TRUE(button.picture.Empty());
  EXPECT_TRUE(button.visible);
  EXPECT_EQ(button.tabIndex, 0);
  EXPECT_EQ(button.skin, -1);
}

struct PictureCase {
  const char* source;
  int builtIn;
};

class BuiltInPictures : public ::testing::TestWithParam<PictureCase> {};

TEST_P(BuiltInPictures, AreFoundByTheEndOfTheirNames) {
  EXPECT_EQ(CatalogueNumber(kPicCatalogue, GetParam().source), GetParam().builtIn);
  ProgramRun run;
  const std::string statement = std::string("Button B, 1, 1, 2, 10, \"x\", \"") + GetParam().source + "\"";
  run.Run(Lines({statement.c_str()}));
  if (GetParam().builtIn >= 0) {
    EXPECT_EQ(ButtonAt(run, 0).picture.builtIn, GetParam().builtIn);
  }
}

INSTANTIATE_TEST_SUITE_P(ButtonTest, BuiltInPictures,
                         ::testing::Values(PictureCase{"PicOK", 0}, PictureCase{"picsave", 1},
                                           PictureCase{"OK", 0}, PictureCase{"OK2", 12}, PictureCase{"Pic$", 9},
                                           PictureCase{"$", 9}, PictureCase{"Monitor", 32},
                                           PictureCase{"PicMonitor", kPicCount - 1}, PictureCase{"", -1},
                                           PictureCase{"PicNothing", -1}, PictureCase{"#1", -1}));

TEST(ButtonTest, APictureFileIsTakenFromTheProgramsFolder) {
  ProgramFolderFile file("tamrix_button_test_picture.png");
  ProgramRun run;
  run.Run(Lines({"Button B, 1, 1, 2, 10, \"x\", \"tamrix_button_test_picture.png\""}));
  EXPECT_EQ(ButtonAt(run, 0).picture.path, "/tmp/tamrix_button_test_picture.png");
  EXPECT_EQ(ButtonAt(run, 0).picture.builtIn, -1);
}

TEST(ButtonTest, AMissingPictureEndsTheCreationWithTheMessageOfItsForm) {
  ProgramRun run;
  run.Run(Lines({"Button A, 1, 1, 2, 10, \"x\", \"nofile.png\", \"tip\"", "Button B, TYPE1, 1, 1, \"y\", nofile.png",
                 "Write \"after\""}));
  EXPECT_EQ(run.Boxes(),
            (Texts{QueryBoxLine("Editor: 0 Line: 1\\rErro ao carregar figura, caminho n\xC3\xA3o encontrado!"),
                   QueryBoxLine("Editor: 0 Line: 2\\rError loading picture, path not found!")}));
  EXPECT_EQ(run.Written(), Texts{"after"});
  // Half made: named and placed, neither shown nor in the tab order.
  for (std::size_t i : {0u, 1u}) {
    EXPECT_EQ(ButtonAt(run, i).tabIndex, -1);
    EXPECT_TRUE(ButtonAt(run, i).tip.empty());
  }
  EXPECT_TRUE(ButtonAt(run, 0).visible);  // entry 0 is the window's own template, shown when taken
  EXPECT_FALSE(ButtonAt(run, 1).visible);
}

TEST(ButtonTest, ThePicturePropertyPassesAMissingFileToTheLoader) {
  ProgramRun run;
  run.Run(Lines({"Button B, 1, 1", "Button B.PICTURE = \"missing.png\"", "Button B.PICTURE = \"PicGear\"",
                 "Button B.PICTURE = \"\""}));
  EXPECT_EQ(run.Boxes(), Texts{QueryBoxLine("Editor: 0 Line: 2\\rError in command Button: File not found")});
  EXPECT_TRUE(ButtonAt(run, 0).picture.Empty());
}

TEST(ButtonTest, FormBTakesItsSkinAndPosition) {
  ProgramRun run;
  run.Run(Lines({"Button S, type3, 2, 10", "Button T, TYPE8, 1, 1, \"Go\", , \"tip\"", "Button U, TYPE0, 1, 1, , PicOK"}));
  const HeadlessControl& s = ButtonAt(run, 0);
  EXPECT_EQ(s.style, 1);
  EXPECT_EQ(s.skin, 3);
  EXPECT_EQ(s.top, 28);
  EXPECT_EQ(s.left, 80);
  EXPECT_EQ(s.caption, "OK");
  EXPECT_EQ(ButtonAt(run, 1).caption, "Go");
  EXPECT_EQ(ButtonAt(run, 1).tip, "tip");
  EXPECT_EQ(ButtonAt(run, 1).skin, 8);
  EXPECT_EQ(ButtonAt(run, 2).caption, "");  // a later element given, the caption element empty
  EXPECT_EQ(ButtonAt(run, 2).picture.builtIn, 0);
  EXPECT_TRUE(run.Boxes().empty());
}

TEST(ButtonTest, FormBWithASkinOutsideTheNineIsASubscriptFaultAfterTheRest) {
  ProgramRun run;
  run.Run(Lines({"Button S, TYPE9, 2, 10, \"Go\"", "Button T, TYPE-1, 2, 10"}));
  const std::string words = "Error in command Button: Subscript out of range";
  EXPECT_EQ(run.Boxes(), (Texts{QueryBoxLine("Editor: 0 Line: 1\\r" + words),
                                QueryBoxLine("Editor: 0 Line: 2\\r" + words)}));
  EXPECT_EQ(ButtonAt(run, 0).caption, "Go");
  EXPECT_EQ(ButtonAt(run, 0).skin, -1);
}

TEST(ButtonTest, PropertiesReachTheControl) {
  ProgramRun run;
  run.Run(Lines({"Button B, 1, 1", "Button B.CAPTION = 1 + 2", "Button B.BACKCOLOR = Red",
                 "Button B.FORECOLOR = 65280", "Button B.TABINDEX = 7", "Button B.FONTNAME = \"Arial\"",
                 "Button B.FONTSIZE = 12.5", "Button B.SETFOCUS"}));
  const HeadlessControl& b = ButtonAt(run, 0);
  EXPECT_EQ(b.caption, "3");
  EXPECT_EQ(b.backColor, 255);
  EXPECT_EQ(b.foreColor, 65280);
  EXPECT_EQ(b.tabIndex, 7);
  EXPECT_EQ(b.fontName, "Arial");
  EXPECT_DOUBLE_EQ(b.fontSize, 12.5);
  EXPECT_EQ(b.focusTaken, 1);
  EXPECT_TRUE(run.Boxes().empty());
}

TEST(ButtonStyleTest, WordsAreSearchedAsPartsInTheirOrder) {
  ProgramRun run;
  ProgramFolderFile up("tamrix_style_up.png");
  ProgramFolderFile down("tamrix_style_down.png");
  run.Run(Lines({"ButtonStyle btnUp = \"tamrix_style_up.png\"", "ButtonStyle MyBtnDownLook = \"tamrix_style_down.png\"",
                 "ButtonStyle BACKCOLOR = 255", "ButtonStyle xFORECOLORx = Blue", "ButtonStyle WHATEVER = 1"}));
  const HeadlessSkins& skins = run.desktop.controls.skins;
  EXPECT_EQ(skins.pictures[static_cast<std::size_t>(ButtonState::Up)], "/tmp/tamrix_style_up.png");
  EXPECT_EQ(skins.pictures[static_cast<std::size_t>(ButtonState::Down)], "/tmp/tamrix_style_down.png");
  EXPECT_EQ(skins.backColor, 255);
  EXPECT_EQ(skins.foreColor, 16711680);
  EXPECT_TRUE(run.Boxes().empty());
}

TEST(ButtonStyleTest, AFileThatCantBeLoadedShowsTheFramesBox) {
  ProgramRun run;
  run.Run(Lines({"ButtonStyle BTNHIGH = \"missing.png\""}));
  EXPECT_EQ(run.Boxes(), Texts{QueryBoxLine("Editor: 0 Line: 1\\rError in command ButtonStyle: File not found")});
}

}  // namespace
}  // namespace tamrix::testing
