// The hourglass for the duration of a scope.
#pragma once

#include <QGuiApplication>

namespace zrw {

class Sanduhr {
  public:
    Sanduhr() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~Sanduhr() { QGuiApplication::restoreOverrideCursor(); }
    Sanduhr(const Sanduhr&) = delete;
    Sanduhr& operator=(const Sanduhr&) = delete;
};

}  // namespace zrw
