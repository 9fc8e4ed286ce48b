// The icons of the program by their names.
#pragma once

#include <QIcon>
#include <string_view>

namespace zrw {

/// In every size that screens of 100 to 200 % ask for; each is read when it is shown. The sources and how the
/// pictures are made of them: ui/bilder/*.svg, skripte/bilder.sh.
[[nodiscard]] QIcon Symbol(std::string_view name);

}  // namespace zrw
