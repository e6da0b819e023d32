// The rule for texts on the disk. In memory texts are UTF-8; on the disk they are in the system's code page,
// or in UTF-8 where they were read so or where the page cannot hold them.
//
//   system's page   a file is read as                                   and written in
//   932, 1252, ...  UTF-8 where it is valid, else that page; plain      UTF-8 when it was read as such; else
//                   ASCII counts as that page                           that page, when the text reads back
//                                                                       the same, else UTF-8
//   65001 (UTF-8)   UTF-8 where it is valid, else as code page 932      the page it was read in, when the
//                   on a Japanese system and 1252 elsewhere             text reads back the same, else UTF-8
//
// So files open everywhere and go back as they came: a plan from Linux stays one that Linux reads, and what
// is new on a Windows machine stands in its page, which every program there reads, as long as the page has
// the characters. Where it has not, UTF-8 loses nothing, while a question mark would. Text of a page hardly
// ever happens to be valid UTF-8 (in 932 nothing but pairs of half-width katakana, such as C2 B1, is within
// reach); where it would, it is not written in the page.
//
// A file that its page cannot decode is read as 1252, in which every byte is a character. Files are told
// apart by their paths, which should come as the machine spells them; one that was not read counts as plain
// ASCII.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace veldrin {

inline constexpr int kUtf8Page = 65001;
inline constexpr int kJapanesePage = 932;
inline constexpr int kWesternPage = 1252;

/// What the machine tells of code pages. UTF-8 and 1252 are built in and never asked for; a conversion that
/// is empty cannot be done.
struct CodePages {
  int systemPage = kUtf8Page;
  bool japanese = false;  // whether the system is a Japanese one
  /// `bytes` of a page as UTF-8; nothing when they are no text of it, or the page is unknown.
  std::function<std::optional<std::string>(int page, std::string_view bytes)> decode;
  /// UTF-8 in a page; nothing when a character is not in it, or the page is unknown.
  std::function<std::optional<std::string>(int page, std::string_view text)> encode;
};

/// Bytes of code page 1252 as UTF-8. The five bytes without a character become the control characters of
/// their numbers.
std::string DecodeWestern(std::string_view bytes);

/// UTF-8 in code page 1252; nothing when a character is not in it or `text` is no UTF-8.
std::optional<std::string> EncodeWestern(std::string_view text);

/// `bytes` of `page` as UTF-8, a byte order mark of UTF-8 left out; nothing when they are no text of the
/// page, or the page is unknown.
std::optional<std::string> DecodeInPage(const CodePages& pages, int page, std::string_view bytes);

/// Texts on their way from and to the disk. Raises nothing.
class TextEncoding {
 public:
  explicit TextEncoding(CodePages pages) : pages_(std::move(pages)) {}

  /// The text of a file, and keeps for Encode how its bytes were read. A byte order mark is dropped.
  std::string Decode(const std::string& path, std::string_view bytes);

  /// The bytes for a file of this text. A byte order mark that was dropped stands again at its front.
  std::string Encode(const std::string& path, std::string_view text) const;

 private:
  /// How the bytes of a file become its text.
  struct Form {
    int page = kUtf8Page;
    bool mark = false;  // a byte order mark in front
  };

  Form FormOf(std::string_view bytes) const;
  std::optional<std::string> EncodePage(int page, std::string_view text) const;

  CodePages pages_;
  std::map<std::string, Form> forms_;  // by path, the case of its letters aside
};

}  // namespace veldrin
