#include "bench/model/component_file.h"

#include <utility>

#include "bench/model/source_encoding.h"
#include "environment/vbe.h"
#include "memory/source_error.h"

namespace brimwork::bench {
namespace {

namespace fs = std::filesystem;

constexpr const char* kClassHeader =
    "VERSION 1.0 CLASS\r\n"
    "BEGIN\r\n"
    "  MultiUse = -1  'True\r\n"
    "  Persistable = 0  'NotPersistable\r\n"
    "  DataBindingBehavior = 0  'vbNone\r\n"
    "  DataSourceBehavior  = 0  'vbNone\r\n"
    "  MTSTransactionMode  = 0  'NotAnMTSObject\r\n"
    "END\r\n";

constexpr const char* kClassAttributes =
    "Attribute VB_GlobalNameSpace = False\r\n"
    "Attribute VB_Creatable = True\r\n"
    "Attribute VB_PredeclaredId = False\r\n"
    "Attribute VB_Exposed = False\r\n";

std::string NewBytes(int type, const std::string& name) {
  const bool isClass = type == component_type::kClassModule;
  return std::string(isClass ? kClassHeader : "") + "Attribute VB_Name = \"" + name + "\"\r\n" +
         (isClass ? kClassAttributes : "");
}

FileComposer Giving(const std::string& bytes) {
  return [&bytes](const ByteSink& sink) { sink(bytes); };
}

}  // namespace

ComponentFile::ComponentFile(fs::path path, FileContent content)
    : path_(std::move(path)),
      source_(SourceFile::Parse(content.bytes, path_.string(), kSourceEncoding)),
      snapshot_(content.snapshot),
      bytes_(std::move(content.bytes)) {}

ComponentFile ComponentFile::Read(const fs::path& path) {
  return {path, ReadWholeFile(path.string())};
}

ComponentFile ComponentFile::ForNew(int type, const std::string& name) {
  return {{}, {NewBytes(type, name), {}}};
}

bool ComponentFile::Differs(const ModuleText& text) const {
  if (path_.empty()) return true;
  std::string_view rest = bytes_;
  bool differs = false;
  const auto compare = [&](std::string_view piece) {
    differs = differs || !rest.starts_with(piece);
    if (!differs) rest.remove_prefix(piece.size());
  };
  try {
    source_.Compose(text, compare);
  } catch (const SourceError&) {
    return true;  // no file holds text that its encoding has not
  }
  return differs || !rest.empty();
}

void ComponentFile::Write(const ModuleText& text) {
  std::string bytes = Compose(text);
  WriteWholeFile(path_.string(), snapshot_, Giving(bytes));
  NoteWritten(path_, std::move(bytes));
}

void ComponentFile::WriteNew(const fs::path& path, const ModuleText& text) {
  std::string bytes = Compose(text);
  CreateWholeFile(path.string(), Giving(bytes));
  NoteWritten(path, std::move(bytes));
}

void ComponentFile::WriteTo(const fs::path& path, const ModuleText& text) {
  const auto there = LookAtFile(path.string());
  if (!there) return WriteNew(path, text);
  std::string bytes = Compose(text);
  WriteWholeFile(path.string(), *there, Giving(bytes));
  NoteWritten(path, std::move(bytes));
}

std::string ComponentFile::Compose(const ModuleText& text) const {
  std::string bytes;
  source_.Compose(text, [&](std::string_view piece) { bytes.append(piece); });
  return bytes;
}

void ComponentFile::NoteWritten(const fs::path& path, std::string bytes) {
  path_ = path;
  bytes_ = std::move(bytes);
  snapshot_ = LookAtFile(path.string()).value_or(FileSnapshot{});
}

}  // namespace brimwork::bench
