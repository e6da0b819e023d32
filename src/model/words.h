// The words that steer the flow. They are plain texts, compared exactly; each is written once, here.
#pragma once

namespace veldrin {

/// `CallerWord`: who is writing to the controls. kUser, the empty word, means that the user is acting.
namespace caller {
inline constexpr char kUser[] = "";
inline constexpr char kForm1[] = "FORM1";
inline constexpr char kForm1Timer[] = "FORM1_TIMER";
inline constexpr char kForm2Load[] = "FORM2_LOAD";
inline constexpr char kForm3[] = "FORM3";
inline constexpr char kForm3DataLoad[] = "FORM3_2";
inline constexpr char kModule1[] = "MODULE1";
inline constexpr char kInit[] = "INIT";
inline constexpr char kRead2[] = "READ2";
inline constexpr char kOriginal[] = "ORIGINAL";
inline constexpr char kQuick[] = "QUICK";
inline constexpr char kCopyRequests[] = "OR";
inline constexpr char kTakeBaseline[] = "O<C";
inline constexpr char kScroll[] = "HSCROLL";
inline constexpr char kCombination[] = "COMB";
inline constexpr char kCloseOpen[] = "CLOSE_OPEN";
inline constexpr char kForm4Ok[] = "FORM4_OK";
}  // namespace caller

/// `ModeWord`: what the workspace is, between events.
namespace mode {
inline constexpr char kBasing[] = "BASING";
inline constexpr char kChange[] = "CHANGE";
inline constexpr char kSpeed[] = "SPEED";
inline constexpr char kRpm[] = "RPM";
inline constexpr char kList[] = "LIST";
inline constexpr char kData[] = "DATA";
inline constexpr char kQuickRatio[] = "QR";
inline constexpr char kReference[] = "REF";
inline constexpr char kReferenceInForce[] = "REF_QR";
}  // namespace mode

/// `ResultWord`: what the last file or search step came to.
namespace result {
inline constexpr char kNone[] = "";
inline constexpr char kOk[] = "OK";
inline constexpr char kNotGood[] = "NG";
inline constexpr char kData[] = "DATA";
inline constexpr char kAnother[] = "ANOTHER";
inline constexpr char kAnotherList[] = "ANOTHER_LIST";
inline constexpr char kDifferent[] = "DIFF";
inline constexpr char kCancel[] = "CANCEL";
inline constexpr char kFullAuto[] = "FULLAUTO";
inline constexpr char kNoPlan[] = "NO_PLAN";
inline constexpr char kOver[] = "OVER";
}  // namespace result

/// `PendingAction`: what follows the decision panel.
namespace pending {
inline constexpr char kNone[] = "";
inline constexpr char kEnding[] = "ENDDING";
inline constexpr char kChangeLoad[] = "CHANGE_LOAD";
inline constexpr char kChangeLoadHistory[] = "CHANGE_LOAD2";
}  // namespace pending

/// `DataChanged` and `RemarkChanged`; only the first knows "0" and "1".
namespace dirty {
inline constexpr char kNo[] = "NO";
inline constexpr char kZero[] = "0";
inline constexpr char kOne[] = "1";
inline constexpr char kYes[] = "YES";
}  // namespace dirty

/// What `QuickQuit` and the like hold.
inline constexpr char kYesWord[] = "YES";
inline constexpr char kNoWord[] = "NO";

/// `Language` where it names a table of the program.
inline constexpr char kJapanese[] = "JP";
inline constexpr char kEnglish[] = "ENGLISH";

/// A place of a gear table without a pair, and what marks the end of a list or a forbidden pair.
inline constexpr char kNoPair[] = "99";
inline constexpr int kEndMark = 99;

/// What `Label10` reads without a deviation.
inline constexpr char kNoDeviation[] = "+-0";

/// Captions of `Label43`: what the chart's solid lines show.
inline constexpr char kPlanShown[] = "CHG";
inline constexpr char kRequestsShown[] = "REQ";

/// Captions of the buttons in `Command1`.
inline constexpr char kAuto[] = "AUTO";
inline constexpr char kManual[] = "MANUAL";

}  // namespace veldrin
