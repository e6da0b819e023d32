// A desktop that opens nothing and keeps what it was asked to open.
#pragma once

#include <QDesktopServices>
#include <QTextBrowser>

namespace veldrin {

/// What the desktop opens links and files with, as long as it lives.
class OpenedLinks : public QTextBrowser {
 public:
  OpenedLinks() {
    for (const char* scheme : kSchemes) QDesktopServices::setUrlHandler(scheme, this, "setSource");
  }
  OpenedLinks(const OpenedLinks&) = delete;
  OpenedLinks& operator=(const OpenedLinks&) = delete;
  ~OpenedLinks() override {
    for (const char* scheme : kSchemes) QDesktopServices::unsetUrlHandler(scheme);
  }

  QStringList opened;

 protected:
  void doSetSource(const QUrl& url, QTextDocument::ResourceType /*type*/) override {
    opened.append(url.toString());
  }

 private:
  static constexpr const char* kSchemes[] = {"https", "file"};
};

}  // namespace veldrin
