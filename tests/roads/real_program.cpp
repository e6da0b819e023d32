#include "tests/roads/real_program.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QThread>

#include <memory>
#include <utility>
#include <vector>

namespace veldrin {

namespace {

constexpr int kPatience = 60000;  // ms
constexpr int kLook = 20;         // ms
constexpr int kKeyPause = 60;     // ms
constexpr wchar_t kSettingsKey[] = L"Software\\Tarn Ridge\\Veldrin";

struct Shown {
  HWND window;
  QString title;
};

struct Search {
  DWORD process;
  std::vector<Shown> found;
};

BOOL CALLBACK Look(HWND window, LPARAM asked) {
  Search& search = *reinterpret_cast<Search*>(asked);
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  if (process != search.process || !IsWindowVisible(window)) return TRUE;
  wchar_t title[512] = {};
  GetWindowTextW(window, title, 512);
  search.found.push_back({window, QString::fromWCharArray(title)});
  return TRUE;
}

std::vector<Shown> ShownBy(qint64 process) {
  Search search{static_cast<DWORD>(process), {}};
  EnumWindows(Look, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

INPUT KeyInput(WORD key, WORD sign, DWORD flags) {
  INPUT input = {};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = key;
  input.ki.wScan = sign;
  input.ki.dwFlags = flags;
  return input;
}

void Send(std::vector<INPUT> inputs) {
  SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
  QThread::msleep(kKeyPause);
}

/// QProcess wants an application.
class Application : public ::testing::Environment {
 public:
  void SetUp() override { application_ = std::make_unique<QCoreApplication>(count_, arguments_); }
  void TearDown() override { application_.reset(); }

 private:
  int count_ = 1;
  char name_[6] = "roads";
  char* arguments_[2] = {name_, nullptr};
  std::unique_ptr<QCoreApplication> application_;
};

const ::testing::Environment* const Standing = ::testing::AddGlobalTestEnvironment(new Application);

}  // namespace

bool Await(const std::function<bool()>& holds) {
  QElapsedTimer time;
  time.start();
  while (time.elapsed() < kPatience) {
    if (holds()) return true;
    QThread::msleep(kLook);
  }
  return false;
}

std::optional<QString> Setting(const QString& name) {
  wchar_t text[1024] = {};
  DWORD size = sizeof text;
  const LSTATUS status = RegGetValueW(HKEY_CURRENT_USER, kSettingsKey, name.toStdWString().c_str(),
                                      RRF_RT_REG_SZ, nullptr, text, &size);
  return status == ERROR_SUCCESS ? std::optional(QString::fromWCharArray(text)) : std::nullopt;
}

void StoreSetting(const QString& name, const QString& text) {
  const std::wstring wide = text.toStdWString();
  RegSetKeyValueW(HKEY_CURRENT_USER, kSettingsKey, name.toStdWString().c_str(), REG_SZ, wide.c_str(),
                  static_cast<DWORD>((wide.size() + 1) * sizeof(wchar_t)));
}

QString InUsersFolder(const QString& name) {
  return QDir::fromNativeSeparators(qEnvironmentVariable("LOCALAPPDATA")) + "/veldrin/" + name;
}

QStringList WindowTitles(qint64 process) {
  QStringList titles;
  for (const Shown& shown : ShownBy(process)) titles.append(shown.title);
  return titles;
}

RealProgram::RealProgram(const QStringList& words, const QStringList& variables) {
  process_.setProcessChannelMode(QProcess::ForwardedChannels);
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.remove("QT_QPA_PLATFORM");
  for (const QString& variable : variables) {
    environment.insert(variable.section('=', 0, 0), variable.section('=', 1));
  }
  process_.setProcessEnvironment(environment);
  process_.start(QCoreApplication::applicationDirPath() + "/veldrin.exe", words);
  EXPECT_TRUE(process_.waitForStarted(kPatience)) << process_.errorString().toStdString();
}

RealProgram::~RealProgram() {
  if (IsRunning()) Kill();
}

HWND RealProgram::Window(const QString& part) const {
  for (const Shown& shown : ShownBy(process_.processId())) {
    if (shown.title.contains(part)) return shown.window;
  }
  return nullptr;
}

HWND RealProgram::AwaitWindow(const QString& part) {
  HWND found = nullptr;
  Await([&] {
    found = Window(part);
    return found != nullptr || process_.waitForFinished(0) || !IsRunning();
  });
  EXPECT_NE(found, nullptr) << "no window \"" << part.toStdString() << "\" among: " << Titles().toStdString();
  return found;
}

void RealProgram::BringForward(const QString& part) {
  const HWND window = AwaitWindow(part);
  EXPECT_TRUE(Await([&] { return GetForegroundWindow() == window || SetForegroundWindow(window) != 0; }));
}

void RealProgram::Press(const QString& part, WORD key, WORD held) {
  BringForward(part);
  std::vector<INPUT> inputs = {KeyInput(key, 0, 0), KeyInput(key, 0, KEYEVENTF_KEYUP)};
  if (held != 0) {
    inputs.insert(inputs.begin(), KeyInput(held, 0, 0));
    inputs.push_back(KeyInput(held, 0, KEYEVENTF_KEYUP));
  }
  Send(std::move(inputs));
}

void RealProgram::Type(const QString& part, const QString& text) {
  BringForward(part);
  for (const QChar sign : text) {
    Send({KeyInput(0, sign.unicode(), KEYEVENTF_UNICODE),
          KeyInput(0, sign.unicode(), KEYEVENTF_UNICODE | KEYEVENTF_KEYUP)});
  }
}

void RealProgram::ChangePlan() {
  constexpr int kMostArrows = 40;
  for (int arrow = 0; arrow < kMostArrows && Window("Changed") == nullptr; ++arrow) {
    Press("[NX4]", VK_F6);
    Press("[NX4]", VK_UP);
  }
  AwaitWindow("Changed");
}

int RealProgram::Close() {
  PostMessageW(AwaitWindow("[NX4]"), WM_CLOSE, 0, 0);
  if (!process_.waitForFinished(kPatience) || process_.exitStatus() != QProcess::NormalExit) return -1;
  return process_.exitCode();
}

void RealProgram::Kill() {
  process_.kill();
  process_.waitForFinished(kPatience);
}

void RoadTest::SetUp() {
  ASSERT_TRUE(qEnvironmentVariableIsSet("VELDRIN_ROADS"))
      << "roads take away what this user has of the program";
  RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\Tarn Ridge");
  QDir(InUsersFolder("")).removeRecursively();
}

}  // namespace veldrin
