#include "bench/model/project_document.h"

#include <utility>

#include "bench/model/component_kind.h"
#include "bench/model/source_encoding.h"
#include "environment/text.h"
#include "memory/listed_path.h"
#include "memory/project_lines.h"
#include "memory/source_error.h"

namespace brimwork::bench {
namespace {

namespace fs = std::filesystem;

}  // namespace

ProjectDocument::ProjectDocument(fs::path path, SourceText source, FileSnapshot snapshot)
    : path_(std::move(path)),
      codec_(std::move(source.codec)),
      text_(std::move(source.text)),
      snapshot_(snapshot) {}

ProjectDocument ProjectDocument::Read(const fs::path& path) {
  FileContent content = ReadWholeFile(path.string());
  if (!IsProjectText(content.bytes)) {
    throw SourceError(path.string(),
                      "this is no project: no line of it names a type, a reference or a file");
  }
  return {path, DecodeSource(std::move(content.bytes), path.string(), kSourceEncoding),
          content.snapshot};
}

std::vector<ProjectEntry> ProjectDocument::Entries() const {
  std::vector<ProjectEntry> entries;
  for (const ProjectLine& line : ProjectLinesOf(text_)) {
    const ComponentKind* kind = KindOfKey(line.key);
    if (kind == nullptr) continue;
    const ListedComponent listed = ComponentIn(line.value);
    entries.push_back(
        {kind->type, std::string(listed.name), std::string(listed.file), line.number});
  }
  return entries;
}

std::string ProjectDocument::Value(std::string_view key) const {
  std::string value;
  for (const ProjectLine& line : ProjectLinesOf(text_)) {
    if (EqualNames(line.key, key)) value = Unquoted(line.value);
  }
  return value;
}

fs::path ProjectDocument::FileOf(const ProjectEntry& entry) const {
  const fs::path file = ResolveListedPath(path_.parent_path(), entry.file).path;
  if (!file.empty()) return file;
  throw SourceError(path_.string(), entry.line, 1, "there is no file \"" + entry.file + '"');
}

void ProjectDocument::Write(std::string text) {
  const std::string bytes = Encoded(text);
  WriteWholeFile(path_.string(), snapshot_, [&](const ByteSink& sink) { sink(bytes); });
  text_ = std::move(text);
  snapshot_ = LookAtFile(path_.string()).value_or(FileSnapshot{});
}

std::string ProjectDocument::Encoded(std::string_view text) {
  try {
    std::string room;
    return std::string(codec_.Encode(text, room));
  } catch (const TextCodecError& error) {
    const TextPosition position = PositionBehind(text.substr(0, error.Offset()));
    throw SourceError(path_.string(), position.line, position.column, error.what());
  }
}

}  // namespace brimwork::bench
