// Everything outside the add-in, handed to each command as one value. Behind the references stand
// either plain data or the real environment.
#pragma once

#include "environment/desktop.h"
#include "environment/dialog_windows.h"
#include "environment/form_host.h"
#include "environment/form_screen.h"
#include "environment/message_boxes.h"
#include "environment/native_windows.h"
#include "environment/registry.h"
#include "environment/rich_text_box.h"
#include "environment/shell.h"
#include "environment/text_files.h"
#include "environment/vbe.h"
#include "environment/window_timers.h"
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
  DialogWindows& dialogWindows;
  WindowTimers& windowTimers;
  MessageBoxes& messageBoxes;
  FormScreen& formScreen;
  RichTextBoxes& richTextBoxes;
  TextFiles& textFiles;
  WordProcessors& wordProcessors;
  Shell& shell;
  HelpViewer& helpViewer;
  FormHost& formHost;
};

}  // namespace brimwork
