// The desktop with calls that fail: each operation is counted, then handed on.
#pragma once

#include <span>
#include <string>

#include "environment/desktop.h"
#include "environment/registry.h"
#include "support/faulty_calls.h"

namespace brimwork {

class FaultyScreen : public Screen {
 public:
  FaultyScreen(Screen& inner, FaultyCalls& calls) : inner_(inner), calls_(calls) {}
  int MousePointer() override {
    return calls_.Through("Screen.MousePointer", [&] { return inner_.MousePointer(); });
  }
  void SetMousePointer(int pointer) override {
    calls_.Through("Screen.SetMousePointer", [&] { inner_.SetMousePointer(pointer); });
  }
  WindowHandle FindWindowByTitle(std::string_view title) override {
    return calls_.Through("Screen.FindWindowByTitle",
                          [&] { return inner_.FindWindowByTitle(title); });
  }
  void LockWindowUpdate(WindowHandle window) override {
    calls_.Through("Screen.LockWindowUpdate", [&] { inner_.LockWindowUpdate(window); });
  }

 private:
  Screen& inner_;
  FaultyCalls& calls_;
};

class FaultyClipboard : public Clipboard {
 public:
  FaultyClipboard(Clipboard& inner, FaultyCalls& calls) : inner_(inner), calls_(calls) {}
  std::string GetText() override {
    return calls_.Through("Clipboard.GetText", [&] { return inner_.GetText(); });
  }
  void SetText(std::string_view text) override {
    calls_.Through("Clipboard.SetText", [&] { inner_.SetText(text); });
  }
  void SetData(std::string_view picture) override {
    calls_.Through("Clipboard.SetData", [&] { inner_.SetData(picture); });
  }
  void Clear() override {
    calls_.Through("Clipboard.Clear", [&] { inner_.Clear(); });
  }

 private:
  Clipboard& inner_;
  FaultyCalls& calls_;
};

class FaultyKeyboard : public Keyboard {
 public:
  FaultyKeyboard(Keyboard& inner, FaultyCalls& calls) : inner_(inner), calls_(calls) {}
  void SendKeys(std::string_view keys, bool wait) override {
    calls_.Through("Keyboard.SendKeys", [&] { inner_.SendKeys(keys, wait); });
  }

 private:
  Keyboard& inner_;
  FaultyCalls& calls_;
};

class FaultyDialogs : public Dialogs {
 public:
  FaultyDialogs(Dialogs& inner, FaultyCalls& calls) : inner_(inner), calls_(calls) {}
  int MsgBox(std::string_view prompt, int style, std::string_view title) override {
    return calls_.Through("Dialogs.MsgBox", [&] { return inner_.MsgBox(prompt, style, title); });
  }
  std::string BrowseForFolder(const BrowseFolderRequest& request) override {
    return calls_.Through("Dialogs.BrowseForFolder",
                          [&] { return inner_.BrowseForFolder(request); });
  }
  bool GetSaveFileName(SaveFileRequest& request) override {
    return calls_.Through("Dialogs.GetSaveFileName",
                          [&] { return inner_.GetSaveFileName(request); });
  }

 private:
  Dialogs& inner_;
  FaultyCalls& calls_;
};

class FaultyMessageLoop : public MessageLoop {
 public:
  FaultyMessageLoop(MessageLoop& inner, FaultyCalls& calls) : inner_(inner), calls_(calls) {}
  void DoEvents() override {
    calls_.Through("MessageLoop.DoEvents", [&] { inner_.DoEvents(); });
  }

 private:
  MessageLoop& inner_;
  FaultyCalls& calls_;
};

class FaultyRegistry : public Registry {
 public:
  FaultyRegistry(Registry& inner, FaultyCalls& calls) : inner_(inner), calls_(calls) {}
  int OpenKey(std::uint32_t hive, std::string_view path, std::uint32_t access,
              RegistryKey& key) override {
    return calls_.StatusThrough("Registry.OpenKey",
                                [&] { return inner_.OpenKey(hive, path, access, key); });
  }
  int QueryValue(RegistryKey key, std::string_view name, std::uint32_t& type,
                 std::span<char> buffer, std::uint32_t& size) override {
    return calls_.StatusThrough("Registry.QueryValue",
                                [&] { return inner_.QueryValue(key, name, type, buffer, size); });
  }
  int CloseKey(RegistryKey key) override {
    return calls_.StatusThrough("Registry.CloseKey", [&] { return inner_.CloseKey(key); });
  }

 private:
  Registry& inner_;
  FaultyCalls& calls_;
};

class FaultySettingsArea : public SettingsArea {
 public:
  FaultySettingsArea(SettingsArea& inner, FaultyCalls& calls) : inner_(inner), calls_(calls) {}
  std::string GetSetting(std::string_view application, std::string_view section,
                         std::string_view key, std::string_view defaultValue) override {
    return calls_.Through("SettingsArea.GetSetting", [&] {
      return inner_.GetSetting(application, section, key, defaultValue);
    });
  }
  void SaveSetting(std::string_view application, std::string_view section, std::string_view key,
                   std::string_view value) override {
    calls_.Through("SettingsArea.SaveSetting",
                   [&] { inner_.SaveSetting(application, section, key, value); });
  }

 private:
  SettingsArea& inner_;
  FaultyCalls& calls_;
};

class FaultyShellFolders : public ShellFolders {
 public:
  FaultyShellFolders(ShellFolders& inner, FaultyCalls& calls) : inner_(inner), calls_(calls) {}
  std::string SpecialFolderPath(int folderId) override {
    return calls_.Through("ShellFolders.SpecialFolderPath",
                          [&] { return inner_.SpecialFolderPath(folderId); });
  }

 private:
  ShellFolders& inner_;
  FaultyCalls& calls_;
};

class FaultyClock : public Clock {
 public:
  FaultyClock(Clock& inner, FaultyCalls& calls) : inner_(inner), calls_(calls) {}
  std::string ShortDate() override {
    return calls_.Through("Clock.ShortDate", [&] { return inner_.ShortDate(); });
  }
  std::string GeneralDate() override {
    return calls_.Through("Clock.GeneralDate", [&] { return inner_.GeneralDate(); });
  }

 private:
  Clock& inner_;
  FaultyCalls& calls_;
};

}  // namespace brimwork
