#include "core/button_faces.h"

namespace brimwork {

void PutFaceOnClipboard(frmInfo& window, Clipboard& clipboard, std::string_view faceKey) {
  window.Load();
  window.picToolbar.Picture = window.imlFaces.Picture(faceKey);
  clipboard.Clear();
  clipboard.SetData(window.picToolbar.Picture.Get());
}

}  // namespace brimwork
