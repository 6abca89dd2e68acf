// The file Brimwork.dll: what it offers, what it needs, and on which systems it starts.
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unknwn.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "support/temporary_folder.h"
#include "support/windows/registered_library.h"
#include "windows/component/identifiers.h"
#include "windows/component/pictures.h"

namespace brimwork {
namespace library_file_test {

using ::testing::IsEmpty;
using ::testing::IsSubsetOf;
using ::testing::UnorderedElementsAre;

std::string Lower(std::string text) {
  std::ranges::transform(text, text.begin(), [](unsigned char c) { return std::tolower(c); });
  return text;
}

/// The file as the system lays it out in memory, without running anything of it.
class MappedLibrary {
 public:
  MappedLibrary()
      : module_(LoadLibraryExW(std::filesystem::path(LibraryPath()).c_str(), nullptr,
                               DONT_RESOLVE_DLL_REFERENCES)) {}
  ~MappedLibrary() { FreeLibrary(module_); }
  MappedLibrary(const MappedLibrary&) = delete;
  MappedLibrary& operator=(const MappedLibrary&) = delete;

  bool IsThere() const { return module_ != nullptr; }
  HMODULE Module() const { return module_; }

  const IMAGE_NT_HEADERS& Headers() const {
    return *At<IMAGE_NT_HEADERS>(static_cast<DWORD>(At<IMAGE_DOS_HEADER>(0)->e_lfanew));
  }

  std::vector<std::string> Exports() const {
    const auto& table = *At<IMAGE_EXPORT_DIRECTORY>(Directory(IMAGE_DIRECTORY_ENTRY_EXPORT));
    std::vector<std::string> names;
    for (DWORD i = 0; i < table.NumberOfNames; ++i) {
      names.emplace_back(At<char>(At<DWORD>(table.AddressOfNames)[i]));
    }
    return names;
  }

  struct Import {
    std::string library;
    std::string function;
  };
  std::vector<Import> Imports() const {
    std::vector<Import> imports;
    const auto* library = At<IMAGE_IMPORT_DESCRIPTOR>(Directory(IMAGE_DIRECTORY_ENTRY_IMPORT));
    for (; library->Name != 0; ++library) {
      const auto* entry = At<IMAGE_THUNK_DATA>(library->OriginalFirstThunk);
      for (; entry->u1.AddressOfData != 0; ++entry) {
        if (IMAGE_SNAP_BY_ORDINAL(entry->u1.Ordinal)) continue;
        const auto at = static_cast<DWORD>(entry->u1.AddressOfData);
        imports.push_back({Lower(At<char>(library->Name)), At<IMAGE_IMPORT_BY_NAME>(at)->Name});
      }
    }
    return imports;
  }

 private:
  template <class Record>
  const Record* At(DWORD offset) const {
    return reinterpret_cast<const Record*>(reinterpret_cast<const char*>(module_) + offset);
  }
  DWORD Directory(int entry) const {
    return Headers().OptionalHeader.DataDirectory[entry].VirtualAddress;
  }

  HMODULE module_;
};

struct LibraryFile : ::testing::Test {
  LibraryFile() {
    if (!library.IsThere()) throw std::runtime_error("the library cannot be loaded");
  }
  MappedLibrary library;
};

TEST_F(LibraryFile, OffersWhatTheSystemCallsAComponentFor) {
  EXPECT_THAT(library.Exports(),
              UnorderedElementsAre("DllGetClassObject", "DllCanUnloadNow", "DllRegisterServer",
                                   "DllUnregisterServer", "DllInstall"));
}

TEST_F(LibraryFile, NeedsLibrariesOfTheSystemOnly) {
  std::set<std::string> libraries;
  for (const auto& import : library.Imports()) libraries.insert(import.library);
  EXPECT_THAT(libraries, IsSubsetOf({"advapi32.dll", "comctl32.dll", "comdlg32.dll", "gdi32.dll",
                                     "kernel32.dll", "msimg32.dll", "msvcrt.dll", "ole32.dll",
                                     "oleaut32.dll", "shell32.dll", "user32.dll"}));
}

TEST_F(LibraryFile, SaysThatItStartsOnWindowsXp) {
  const auto& header = library.Headers().OptionalHeader;
  EXPECT_EQ(header.MajorSubsystemVersion, 5);
  EXPECT_EQ(header.MinorSubsystemVersion, sizeof(void*) == 4 ? 1 : 2);
  EXPECT_EQ(header.Subsystem, IMAGE_SUBSYSTEM_WINDOWS_GUI);
}

/// The functions of the system that it needs, each of which Windows XP has. One that is new here is
/// to be looked up before it is added.
std::set<std::string> FunctionsOfWindowsXp() {
  std::set<std::string> functions;
  std::string name;
  const auto list = std::filesystem::path(BRIMWORK_SOURCE_DIR) /
                    "tests/windows/end_to_end/functions_of_windows_xp.txt";
  for (const char c : ReadBytes(list)) {
    if (c == '\n' || c == '\r') {
      functions.insert(std::exchange(name, ""));
    } else {
      name += c;
    }
  }
  return functions;
}

TEST_F(LibraryFile, NeedsNoFunctionThatWindowsXpHasNot) {
  const std::set<std::string> known = FunctionsOfWindowsXp();
  std::set<std::string> unknown;
  for (const auto& import : library.Imports()) {
    const std::string function = import.library + " " + import.function;
    if (!known.contains(function)) unknown.insert(function);
  }
  EXPECT_THAT(unknown, IsEmpty());
}

TEST_F(LibraryFile, IsSmall) {
  constexpr std::uintmax_t kMegabyte = 1024 * 1024;
  EXPECT_LE(std::filesystem::file_size(LibraryPath()), 2 * kMegabyte);
}

TEST_F(LibraryFile, HasEveryPicture) {
  namespace fs = std::filesystem;
  const fs::path resources = fs::path(BRIMWORK_SOURCE_DIR) / "resources";
  int count = 0;
  for (const char* folder : {"faces", "icon", "msgbox", "splash"}) {
    for (const auto& file : fs::directory_iterator(resources / folder)) {
      const std::string extension = file.path().extension().string();
      if (extension != ".bmp" && extension != ".ico") continue;
      const std::string name = folder + ("/" + file.path().stem().string());
      const auto picture = windows::PictureOf(library.Module(), name);
      const std::string bytes(picture.begin(), picture.end());
      EXPECT_TRUE(bytes == ReadBytes(file.path())) << name;
      ++count;
    }
  }
  EXPECT_GT(count, 25);
  EXPECT_THAT(windows::PictureOf(library.Module(), "faces/none"), IsEmpty());
}

TEST(LoadedLibrary, CanGoWhenNothingOfItIsUsed) {
  const HMODULE module = LoadLibraryW(std::filesystem::path(LibraryPath()).c_str());
  ASSERT_NE(module, nullptr);
  const auto canUnload = reinterpret_cast<HRESULT(WINAPI*)()>(
      reinterpret_cast<void (*)()>(GetProcAddress(module, "DllCanUnloadNow")));
  const auto classObject = reinterpret_cast<HRESULT(WINAPI*)(REFCLSID, REFIID, void**)>(
      reinterpret_cast<void (*)()>(GetProcAddress(module, "DllGetClassObject")));
  EXPECT_EQ(canUnload(), S_OK);

  IClassFactory* factory = nullptr;
  ASSERT_EQ(
      classObject(windows::kConnectClass, IID_IClassFactory, reinterpret_cast<void**>(&factory)),
      S_OK);
  EXPECT_EQ(canUnload(), S_FALSE);
  IUnknown* object = nullptr;
  ASSERT_EQ(factory->CreateInstance(nullptr, IID_IUnknown, reinterpret_cast<void**>(&object)),
            S_OK);
  factory->Release();
  EXPECT_EQ(canUnload(), S_FALSE);
  object->Release();
  EXPECT_EQ(canUnload(), S_OK);

  void* other = nullptr;
  EXPECT_EQ(classObject(IID_IUnknown, IID_IClassFactory, &other), CLASS_E_CLASSNOTAVAILABLE);
  FreeLibrary(module);
}

}  // namespace library_file_test
}  // namespace brimwork
