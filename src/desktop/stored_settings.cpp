#include "desktop/stored_settings.h"

#include "runtime/text.h"
#include "workspace/failure_texts.h"

namespace veldrin {

namespace {

constexpr int kShownText = 60;  // characters of a stored text

std::string Shown(const std::string& text) {
  const std::string front = Left(text, kShownText);
  return front == text ? text : front + "...";
}

}  // namespace

Notice SettingsNotice(const SettingsTrouble& trouble) {
  const std::string& path = trouble.path;
  if (trouble.fault == 0) {
    return {Severity::Warning,
            {"The settings file " + path + " was damaged. It is kept as " + trouble.copy +
                 "; what could be read of it holds.",
             "設定ファイル " + path + " が壊れていました。" + trouble.copy +
                 " として残し、読み取れた設定を引き継ぎました。"}};
  }
  const BothLanguages cause = FailureCause(trouble.fault);
  return {Severity::Failure,
          {"Settings cannot be stored in " + path + " and hold for this run alone: " + cause.english,
           "設定を " + path + " に保存できません。変更は今回の起動中のみ有効です: " + cause.japanese}};
}

BothLanguages BadSettingWords(const StoredValue& bad, const std::string& place) {
  const std::string text = "\"" + Shown(bad.text) + "\"";
  return {bad.value + " is " + text + " in " + place + ".",
          place + " で " + bad.value + " が " + text + " になっています。"};
}

}  // namespace veldrin
