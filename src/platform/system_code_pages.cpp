#include "platform/system_code_pages.h"

#include <array>

#ifdef _WIN32
#include <windows.h>
#elif __has_include(<iconv.h>)
#include <iconv.h>
#define VELDRIN_ICONV
#endif

namespace veldrin {

namespace {

#ifdef _WIN32

std::optional<std::wstring> ToWide(UINT page, std::string_view bytes) {
  if (bytes.empty()) return std::wstring();
  const int length = static_cast<int>(bytes.size());
  const int size = MultiByteToWideChar(page, MB_ERR_INVALID_CHARS, bytes.data(), length, nullptr, 0);
  if (size <= 0) return std::nullopt;
  std::wstring wide(static_cast<std::size_t>(size), L'\0');
  MultiByteToWideChar(page, MB_ERR_INVALID_CHARS, bytes.data(), length, wide.data(), size);
  return wide;
}

std::optional<std::string> FromWide(UINT page, const std::wstring& wide) {
  if (wide.empty()) return std::string();
  const int length = static_cast<int>(wide.size());
  // For UTF-8 the system takes neither the flag nor the question for gaps.
  const bool utf8 = page == CP_UTF8;
  const DWORD flags = utf8 ? 0 : WC_NO_BEST_FIT_CHARS;
  BOOL gaps = FALSE;
  BOOL* const asked = utf8 ? nullptr : &gaps;
  const int size = WideCharToMultiByte(page, flags, wide.data(), length, nullptr, 0, nullptr, asked);
  if (size <= 0 || gaps != FALSE) return std::nullopt;
  std::string bytes(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(page, flags, wide.data(), length, bytes.data(), size, nullptr, nullptr);
  return bytes;
}

std::optional<std::string> DecodePage(int page, std::string_view bytes) {
  const std::optional<std::wstring> wide = ToWide(static_cast<UINT>(page), bytes);
  if (!wide) return std::nullopt;
  return FromWide(CP_UTF8, *wide);
}

std::optional<std::string> EncodePage(int page, std::string_view text) {
  const std::optional<std::wstring> wide = ToWide(CP_UTF8, text);
  if (!wide) return std::nullopt;
  return FromWide(static_cast<UINT>(page), *wide);
}

#elif defined(VELDRIN_ICONV)

/// A conversion of the C library.
class Conversion {
 public:
  Conversion(const std::string& to, const std::string& from)
      : handle_(iconv_open(to.c_str(), from.c_str())) {}
  Conversion(const Conversion&) = delete;
  Conversion& operator=(const Conversion&) = delete;
  ~Conversion() {
    if (IsKnown()) iconv_close(handle_);
  }

  /// Nothing when a byte or character has no counterpart.
  std::optional<std::string> Convert(std::string_view from) const {
    if (!IsKnown()) return std::nullopt;
    std::string converted;
    std::array<char, 4096> room;
    char* in = const_cast<char*>(from.data());  // it reads only
    std::size_t inLeft = from.size();
    while (inLeft > 0) {
      char* out = room.data();
      std::size_t outLeft = room.size();
      const std::size_t result = iconv(handle_, &in, &inLeft, &out, &outLeft);
      converted.append(room.data(), room.size() - outLeft);
      // A count above 0 stands for likenesses; no progress at all for what cannot be converted.
      const bool failed = result == static_cast<std::size_t>(-1);
      if ((!failed && result > 0) || (failed && outLeft == room.size())) return std::nullopt;
    }
    return converted;
  }

 private:
  bool IsKnown() const { return handle_ != reinterpret_cast<iconv_t>(-1); }

  iconv_t handle_;
};

std::string NameOf(int page) {
  return "CP" + std::to_string(page);
}

std::optional<std::string> DecodePage(int page, std::string_view bytes) {
  return Conversion("UTF-8", NameOf(page)).Convert(bytes);
}

std::optional<std::string> EncodePage(int page, std::string_view text) {
  return Conversion(NameOf(page), "UTF-8").Convert(text);
}

#else

std::optional<std::string> DecodePage(int /*page*/, std::string_view /*bytes*/) {
  return std::nullopt;
}

std::optional<std::string> EncodePage(int /*page*/, std::string_view /*text*/) {
  return std::nullopt;
}

#endif

#ifdef _WIN32

/// A process may have UTF-8 for its page while the others of the system do not, for whom its files are, too.
int SystemPage() {
  const int own = static_cast<int>(GetACP());
  if (own != kUtf8Page) return own;
  wchar_t text[8] = {};
  DWORD size = sizeof text;
  const LSTATUS status =
      RegGetValueW(HKEY_LOCAL_MACHINE, L"SYSTEM\\CurrentControlSet\\Control\\Nls\\CodePage", L"ACP",
                   RRF_RT_REG_SZ, nullptr, text, &size);
  const int page = status == ERROR_SUCCESS ? _wtoi(text) : 0;
  return page > 0 ? page : own;
}

#else

int SystemPage() {
  return kUtf8Page;
}

#endif

}  // namespace

CodePages SystemCodePages(bool japanese) {
  CodePages pages;
  pages.systemPage = SystemPage();
  pages.japanese = japanese;
  pages.decode = DecodePage;
  pages.encode = EncodePage;
  return pages;
}

}  // namespace veldrin
