// Everything outside the add-in, handed to each command as one value. Behind the references stand
// either plain data or the real environment.
#pragma once

#include "environment/desktop.h"
#include "environment/form_host.h"
#include "environment/native_windows.h"
#include "environment/registry.h"
#include "environment/rich_text_box.h"
#include "environment/text_files.h"
#include "environment/vbe.h"
#include "environment/word_processor.h"

namespace brimwork {

struct Environment {
  VBE& vbe;
  Screen& screen;
  Clipboard& clipboard;
  Keyboard& keyboard;
  Dialogs& dialogs;
  MessageLoop& messageLoop;
  Registry& registry;
  SettingsArea& settingsArea;
  ShellFolders& shellFolders;
  Clock& clock;
  App& app;
  NativeWindows& nativeWindows;
  RichTextBoxes& richTextBoxes;
  TextFiles& textFiles;
  WordProcessors& wordProcessors;
  FormHost& formHost;
};

}  // namespace brimwork
