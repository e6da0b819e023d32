// For each way of ending that does not ask: edit, end, start, Open. All that was on the screen is there
// again.
#include "program/event_boundary.h"
#include "tests/desktop/other_half.h"
#include "tests/desktop/running_program.h"

namespace veldrin {
namespace {

/// The user's work, which is looked for on the other side.
void Edit(DesktopProgram& desktop) {
  Form2& form2 = desktop.program->form2;
  desktop.stage.input.Do([&] { return user::EnterText(form2.Text6, "wet\r\ncold"); });
  desktop.stage.input.Do([&] { return user::ScrollTo(form2.HScroll1, 11000); });
}

class KeptPlansTest : public RunningProgramTest {
 protected:
  QStringList KeptFiles() const { return InKeepFolder("*.kept"); }

  /// Runs the program, edits, and lets it end by `end` once the edit has been seen.
  int EditAndEnd(const std::string& file, const std::function<void()>& end) {
    return Run(file, [&] {
      Edit(Desktop());
      QTimer::singleShot(0, qApp, [=] { QTimer::singleShot(0, qApp, end); });
    });
  }

  void Anew() {
    TearDown();
    SetUp();
  }

  const Notice* Offered() { return Desktop().stage.notices.Shown(); }

  void Press(std::size_t action) {
    const auto act = Offered()->actions.at(action).act;
    Desktop().stage.notices.Drop();
    Desktop().stage.input.Do([&] {
      act();
      return true;
    });
  }

  /// Starts once more, opens what is offered, and looks.
  void ExpectAllBack() {
    Anew();
    ASSERT_EQ(KeptFiles().size(), 1);
    When([this] { return Offered() != nullptr; },
         [this] {
           EXPECT_TRUE(Offered()->text.english.starts_with("A plan of NX4 from ")) << Offered()->text.english;
           Press(0);
           const Workspace& workspace = Main().workspace;
           EXPECT_EQ(workspace.MachineName, "NX4");
           EXPECT_EQ(workspace.ShiftNe, 11000);
           EXPECT_EQ(Main().form2.Text6.Text, "wet\r\ncold");
           EXPECT_EQ(workspace.DataChanged, dirty::kYes);
           EXPECT_EQ(workspace.DataFile, PlanFile());
           Desktop().EndAtOnce();
         });
    Finish("");
    EXPECT_EQ(KeptFiles().size(), 1) << "it was not saved this time either";
  }
};

TEST_F(KeptPlansTest, Fault) {
  When([] { return OpenBox() != nullptr; },
       [] {
         EXPECT_TRUE(OpenBox()->text().contains("The plan is kept.")) << OpenBox()->text().toStdString();
         OpenBox()->accept();
       });
  EditAndEnd(PlanFile(), [this] { Desktop().stage.input.Do([]() -> bool { Raise(kFaultDivisionByZero); }); });
  ExpectAllBack();
}

TEST_F(KeptPlansTest, EndWithoutAQuestion) {
  EditAndEnd(PlanFile(), [this] { Desktop().EndAtOnce(); });
  ExpectAllBack();
}

TEST_F(KeptPlansTest, EndOfTheSession) {
  EditAndEnd(PlanFile(), [this] { Desktop().EndSession(false); });
  ExpectAllBack();
}

TEST_F(KeptPlansTest, LostDisplay) {
  EditAndEnd(PlanFile(), [this] {
    Desktop().LeaveTidy();
    QCoreApplication::exit(1);
  });
  ExpectAllBack();
}

TEST_F(KeptPlansTest, CloseThatHasNothingToAsk) {
  EditAndEnd(PlanFile(), [this] {
    RunEvent(Main(), [&] { Main().workspace.QuickQuit = kYesWord; });
    Desktop().windows.FormOf(Main().form2)->close();
  });
  ExpectAllBack();
}

TEST_F(KeptPlansTest, CrashAfterTwoSeconds) {
  OtherHalf victim("DISABLED_KeptPlansVictim.EditsAndIsKilled",
                   {qEnvironmentVariable("XDG_STATE_HOME"), QString::fromStdString(PlanFile())});
  victim.AwaitEnd();
  EXPECT_TRUE(victim.Died());
  ExpectAllBack();
}

/// The copy of the program that crashes, in a process of its own. It stands in its test's folders.
class DISABLED_KeptPlansVictim : public ::testing::Test {};

TEST_F(DISABLED_KeptPlansVictim, EditsAndIsKilled) {
  const QStringList words = OtherHalf::Words();
  qputenv("XDG_STATE_HOME", words[0].toUtf8());
  DesktopProgram desktop;
  const auto edit = [&] {
    Edit(desktop);
    QTimer::singleShot(2000, qApp, [] { DieAtOnce(); });
  };
  QTimer polling;
  QObject::connect(&polling, &QTimer::timeout, [&] {
    if (!desktop.program->form2.Visible || desktop.program->eventDepth > 0) return;
    polling.stop();
    edit();
  });
  polling.start(5);
  desktop.Run(words[1].toStdString());
}

TEST_F(KeptPlansTest, QuitWithTheUsersWordKeepsNothing) {
  EditAndEnd(PlanFile(), [this] {
    Desktop().windows.FormOf(Main().form2)->close();
    ASSERT_FALSE(Main().ended);
    Desktop().stage.input.Do([&] { return user::Click(Main().form2.Command9); });
  });
  EXPECT_EQ(KeptFiles(), QStringList());
}

TEST_F(KeptPlansTest, PlanThatWasOnlyLoadedIsNotKept) {
  Run(PlanFile(), [this] { Desktop().EndAtOnce(); });
  EXPECT_EQ(KeptFiles(), QStringList());
}

TEST_F(KeptPlansTest, StartAgainNamesTheKeptPlan) {
  std::string id;
  When([] { return OpenBox() != nullptr; },
       [] {
         for (QAbstractButton* button : OpenBox()->buttons()) {
           if (button->text() == "Start again") return button->click();
         }
         ADD_FAILURE() << "no button to start again";
         OpenBox()->accept();
       });
  Desktop().startAgain = [&](const std::string& keptId, const std::string& file) {
    id = keptId;
    EXPECT_EQ(file, PlanFile());
  };
  EditAndEnd(PlanFile(), [this] { Desktop().stage.input.Do([]() -> bool { Raise(kFaultOverflow); }); });
  ASSERT_FALSE(id.empty());
  qputenv("VELDRIN_KEPT", QByteArray::fromStdString(id));
  Anew();
  EXPECT_FALSE(qEnvironmentVariableIsSet("VELDRIN_KEPT"));
  Run("", [this] {
    When([this] { return Main().workspace.DataChanged == dirty::kYes; },
         [this] {
           EXPECT_EQ(Main().form2.Text6.Text, "wet\r\ncold");
           EXPECT_EQ(Offered(), nullptr);
           Desktop().EndAtOnce();
         });
  });
}

TEST_F(KeptPlansTest, FaultIsToldInJapaneseWhereTheProgramSpeaksIt) {
  QStringList buttons;
  When([] { return OpenBox() != nullptr; },
       [&] {
         EXPECT_TRUE(OpenBox()->text().endsWith("\n\nプランは保管されています。"));
         for (QAbstractButton* button : OpenBox()->buttons()) buttons << button->text();
         OpenBox()->accept();
       });
  EditAndEnd(PlanFile(), [this] {
    Main().workspace.IsJapanese = 1;
    Main().workspace.Language = kJapanese;
    Desktop().stage.input.Do([]() -> bool { Raise(kFaultOverflow); });
  });
  EXPECT_TRUE(buttons.contains("再起動"));
}

TEST_F(KeptPlansTest, FaultWithoutChangesSaysNothingOfAPlan) {
  When([] { return OpenBox() != nullptr; },
       [] {
         EXPECT_FALSE(OpenBox()->text().contains("kept"));
         EXPECT_TRUE(OpenBox()->text().contains("A number was too large."));
         OpenBox()->accept();
       });
  Run("", [this] { Desktop().stage.input.Do([]() -> bool { Raise(kFaultOverflow); }); });
  EXPECT_EQ(KeptFiles(), QStringList());
}

}  // namespace
}  // namespace veldrin
