// UTF-8 std::string <-> QString.
#pragma once
#include <QString>
#include <string>

#include "core/text.h"

namespace gui {
inline QString q(const std::string& s) { return QString::fromUtf8(s.data(), static_cast<int>(s.size())); }
inline std::string s(const QString& t) { return t.toStdString(); }
inline int core_len(const std::string& s) { return static_cast<int>(core::Len(s)); }
}  // namespace gui
