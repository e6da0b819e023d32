// Variables of the environment that a test changes.
#pragma once

#include <QByteArray>
#include <QtGlobal>

namespace veldrin {

/// Gives a variable back what it held.
class Variable {
 public:
  explicit Variable(const char* name)
      : name_(name), before_(qgetenv(name)), was_(qEnvironmentVariableIsSet(name)) {}
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;
  ~Variable() { was_ ? qputenv(name_, before_) : qunsetenv(name_); }

 private:
  const char* name_;
  QByteArray before_;
  bool was_;
};

}  // namespace veldrin
