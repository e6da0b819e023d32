#include "model/list_tables.h"
#include "plan/check/list_check.h"
#include "plan/commands/call_files.h"
#include "plan/commands/commands.h"
#include "plan/csv/list_writer.h"
#include "plan/csv/parts_csv.h"
#include "plan/csv/written_files.h"
#include "plan/files/bad_input.h"
#include "platform/disk.h"

namespace veldrin {

namespace {

/// The bytes of a text in the call's encoding. Throws BadInput for a character that it does not have.
std::string Bytes(const Call& call, const std::string& path, const std::string& text) {
  if (!call.arguments.page) return TextEncoding(call.pages).Encode(path, text);
  const int page = *call.arguments.page;
  std::optional<std::string> bytes;
  if (page == kUtf8Page) {
    bytes = text;
  } else {
    bytes = page == kWesternPage ? EncodeWestern(text) : call.pages.encode(page, text);
  }
  if (!bytes)
    RefuseFile(path, "a character of it is not in cp" + std::to_string(page) + "; type --encoding utf-8");
  return *bytes;
}

std::string CombinationPath(const std::string& listPath) {
  return TextOfPath(PathOfText(listPath).replace_extension(".CMB"));
}

}  // namespace

int ListFromCsv(const Call& call) {
  const std::string& csvPath = call.arguments.csvPath;
  const std::string& listPath = call.arguments.listPath;
  const PartsTable parts = ReadPartsCsv(csvPath, TextOfFile(call, csvPath));
  const std::string text = MachineListText(parts);
  const ListRemarks remarks = RemarksOfList(listPath, text);
  for (const ListRemark& remark : remarks.InOrder()) {
    if (!remark.warning) RefuseFile(csvPath, "the list would be wrong: " + remark.text);
  }
  std::vector<WrittenFile> files = {{listPath, Bytes(call, listPath, text)}};
  if (parts.HasParts()) {
    const std::string path = CombinationPath(listPath);
    files.push_back({path, Bytes(call, path, CombinationText(parts))});
  }
  WriteFiles(files);
  for (const ListRemark& remark : remarks.InOrder()) WriteRemark(call.errors, listPath, remark);
  for (const WrittenFile& file : files) call.out << file.path << ": written\n";
  return kDone;
}

int ListToCsv(const Call& call) {
  const std::string& path = call.arguments.listPath;
  const Workspace machine = MachineOfList(call, path);
  const std::optional<CombinationFile> combination = CombinationBeside(call, path, machine);
  call.out << PartsCsv(PartsOfList(TextOfFile(call, path), combination.value_or(CombinationFile())));
  return kDone;
}

}  // namespace veldrin
