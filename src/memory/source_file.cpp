#include "memory/source_file.h"

#include "environment/utf8.h"
#include "memory/source_composer.h"
#include "memory/source_error.h"
#include "memory/source_text.h"
#include "memory/utf8_path.h"

namespace brimwork {

SourceFile SourceFile::Parse(std::string bytes, std::string path, const std::string& encoding) {
  SourceFile file;
  file.path_ = std::move(path);
  SourceText source = DecodeSource(std::move(bytes), file.path_, encoding);
  file.codec_ = std::make_unique<TextCodec>(std::move(source.codec));
  file.text_ = std::make_shared<const std::string>(std::move(source.text));
  file.readAscii_ = FindNonAscii(*file.text_, 0) == file.text_->size();
  ParsedSource parsed = ReadLayout(file.text_, file.path_);
  file.layout_ = std::move(parsed.layout);
  file.module_ = std::move(parsed.text);
  file.moduleName_ = file.layout_.preamble.moduleName;
  if (file.moduleName_.empty())
    file.moduleName_ = TextOf(PathOf(file.path_).stem());
  return file;
}

void SourceFile::SetModuleName(std::string_view name) {
  const std::size_t oldSize = layout_.preamble.size;
  std::string text = WithModuleName(*text_, layout_.preamble, name);
  layout_.preamble = ReadPreamble(text, path_);
  text.append(*text_, oldSize);
  for (HiddenAttribute& hidden : layout_.hidden) {
    hidden.offset = hidden.offset - oldSize + layout_.preamble.size;
  }
  text_ = std::make_shared<const std::string>(std::move(text));
  readAscii_ = FindNonAscii(*text_, 0) == text_->size();
  moduleName_ = name;
}

void SourceFile::RequireEncodable(const ModuleText& text) const {
  if (codec_->IsAsciiCompatible() && readAscii_ && text.StoredAsciiOnly()) return;
  Compose(text, [](std::string_view) {});
}

void SourceFile::Compose(const ModuleText& text, const ByteSink& sink) const {
  ComposeFile({path_, *text_, layout_, *codec_}, text, sink);
}

int SourceFile::ModuleLineOf(int fileLine) const {
  RequireLine(fileLine, FileLines(), "the file");
  return layout_.ModuleLineOf(fileLine);
}

int SourceFile::FileLineOf(int moduleLine) const {
  RequireLine(moduleLine, layout_.moduleLines, "its module");
  return layout_.FileLineOf(moduleLine);
}

void SourceFile::RequireLine(int line, int count, const std::string& what) const {
  if (line >= 1 && line <= count) return;
  throw SourceError(path_, "there is no line " + std::to_string(line) + "; " + what + " has " +
                               std::to_string(count) + (count == 1 ? " line" : " lines"));
}

}  // namespace brimwork
