// The pictures on the add-in's buttons.
#pragma once

#include <string_view>

#include "core/frmInfo.h"
#include "environment/desktop.h"

namespace brimwork {

/// Puts the picture of a face key on the clipboard, from where a button takes it; what was there is
/// lost. Loads the progress window, which carries the pictures. Raises RunTimeError for a key
/// without a picture.
void PutFaceOnClipboard(frmInfo& window, Clipboard& clipboard, std::string_view faceKey);

}  // namespace brimwork
