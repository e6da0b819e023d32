// What the runner prints, with a whole program behind it.
#include "script/script_runner.h"

#include <gtest/gtest.h>

#include <sstream>

namespace veldrin {
namespace {

struct Ran {
  ScriptVerdict verdict;
  std::string out;
  std::string err;
};

Ran RunText(const std::string& text, ScriptHand&& hand = ScriptHand()) {
  std::istringstream script(text);
  std::ostringstream out;
  std::ostringstream err;
  const ScriptVerdict verdict = RunScript(script, "a.script", ".", hand, out, err);
  return {verdict, out.str(), err.str()};
}

TEST(ScriptRunner, ShowsNameAndValue) {
  const Ran ran = RunText(
      "file C:\\A.TXT \"a\" & TAB & \"b\" & CRLF\n"
      "registry HKCU \"Some Key\" \"\" \" x\"\n"
      "start\n"
      "set SpeedNow(1..2) 58.75 -60\n"
      "show SpeedNow(1..2)\n"
      "show GearTable(1,1..2)\n"
      "show file \"C:\\A.TXT\"\n"
      "show files C:\\*.TXT\n"
      "show registry HKCU \"Some Key\" \"\"\n"
      "show Form1.Label1.Caption\n"
      "show Form2.Label9.Caption\n"
      "show ended\n");
  EXPECT_EQ(ran.err, "");
  EXPECT_EQ(ran.verdict, ScriptVerdict::Held);
  EXPECT_EQ(ran.out,
            "SpeedNow(1) = 58.75\n"
            "SpeedNow(2) = -60\n"
            "GearTable(1,1) = \n"
            "GearTable(1,2) = \n"
            "file \"C:\\A.TXT\" = a<TAB>b<CR><LF>\n"
            "files C:\\*.TXT = A.TXT\n"
            "registry HKCU \"Some Key\" \"\" =  x\n"
            "Form1.Label1.Caption = Veldrin\n"
            "Form2.Label9.Caption = (none)\n"
            "ended = no\n");
}

TEST(ScriptRunner, TraceTellsWritesAndEvents) {
  const Ran ran = RunText(
      "start\n"
      "trace on\n"
      "set Form1.Label1.Caption \" 98.4\"\n"
      "set Form1.Label1.Caption \" 98.4\"\n"
      "set Form1.Label1.Visible False\n"
      "click Form1.Label2\n"
      "trace off\n"
      "set Form1.Label1.Caption \"\"\n");
  EXPECT_EQ(ran.err, "");
  EXPECT_EQ(ran.out,
            "write Form1.Label1.Caption \" 98.4\"\n"
            "event Form1.Label1.Change\n"
            "write Form1.Label1.Caption \" 98.4\"\n"
            "write Form1.Label1.Visible False\n"
            "event Form1.Label2.MouseDown\n"
            "event Form1.Label2.MouseUp\n"
            "event Form1.Label2.Click\n");
}

TEST(ScriptRunner, TraceBeginsBehindTheMakingOfWindows) {
  const Ran ran = RunText("trace on\nstart\ntrace off\n");
  EXPECT_EQ(ran.out.find("Form3"), std::string::npos);
  EXPECT_NE(ran.out.find("event Form1.Load\n"), std::string::npos);
}

TEST(ScriptRunner, ShowAloneEmptiesTheLog) {
  const Ran ran = RunText(
      "start\nadvance 100\nset Form3.File1.FileName none\nexpect log \"fault 53\"\nshow log\nshow log\n");
  EXPECT_EQ(ran.verdict, ScriptVerdict::Held);
  EXPECT_EQ(ran.out, "log = fault 53\nlog = \n");
}

TEST(ScriptRunner, FailureIsToldInFull) {
  const Ran ran = RunText("# The phase.\nstart\nexpect ModeWord \"a\" & CR\n");
  EXPECT_EQ(ran.verdict, ScriptVerdict::Failed);
  EXPECT_EQ(ran.out, "");
  EXPECT_EQ(ran.err,
            "a.script:3: ModeWord\n"
            "  in:       The phase.\n"
            "  expected: \"a<CR>\"\n"
            "  found:    \"\"\n");
}

TEST(ScriptRunner, FirstErrorStopsTheScript) {
  const Ran ran = RunText("start\nexpect ModeWord x\nshow Nothing\nshow ModeWord\n");
  EXPECT_EQ(ran.verdict, ScriptVerdict::Wrong);
  EXPECT_EQ(ran.out, "");
  EXPECT_NE(ran.err.find("a.script:3: unknown name Nothing\n"), std::string::npos);
}

TEST(ScriptRunner, AnswerThatNobodyAskedForIsAWarning) {
  const Ran ran = RunText("start\nanswer box OK\nanswer colour 1,2,3\nanswer print cancel\n");
  EXPECT_EQ(ran.verdict, ScriptVerdict::Held);
  EXPECT_EQ(ran.err, "a.script: warning: nobody asked for 3 of the answers\n");
}

TEST(ScriptRunner, EntryThatIsNotThereIsBlockedAndAWarning) {
  const Ran ran = RunText(
      "start\nadvance 100\nselect Form3.Drive1 X:\nshow blocked\nselect Form3.Drive1 D:\nshow blocked\n");
  EXPECT_EQ(ran.verdict, ScriptVerdict::Held);
  EXPECT_EQ(ran.out, "blocked = True\nblocked = False\n");
  EXPECT_EQ(ran.err, "a.script:3: warning: Form3.Drive1 has no X:\n");
}

TEST(ScriptRunner, PictureNeedsWidgets) {
  EXPECT_EQ(RunText("start\nscreenshot Form1 a.png\n").verdict, ScriptVerdict::Wrong);
}

/// A front end whose labels show something else.
struct WrongLabels : ScriptHand {
  std::optional<std::string> Shown(const Control& control, const std::string& slot) override {
    if (control.kind == ControlKind::Label && slot == "Caption") return "other";
    return std::nullopt;
  }
};

TEST(ScriptRunner, WidgetThatDiffersFromItsSlotFails) {
  const Ran ran = RunText("start\nshow Form1.Label1.Caption\n", WrongLabels());
  EXPECT_EQ(ran.verdict, ScriptVerdict::Failed);
  EXPECT_EQ(ran.out, "Form1.Label1.Caption = Veldrin\n");
  EXPECT_EQ(ran.err,
            "a.script:2: Form1.Label1.Caption\n"
            "  slot:     \"Veldrin\"\n"
            "  widget:   \"other\"\n");
}

TEST(ScriptRunner, NoFileIsWrong) {
  ScriptHand hand;
  EXPECT_EQ(RunScriptFiles({}, hand, "runner"), ScriptVerdict::Wrong);
  EXPECT_EQ(RunScriptFiles({"no such file"}, hand, "runner"), ScriptVerdict::Wrong);
}

}  // namespace
}  // namespace veldrin
