#include "memory/source_text.h"

#include <algorithm>
#include <array>

#include "environment/text.h"
#include "memory/raw_line.h"
#include "memory/source_error.h"

namespace brimwork {
namespace {

struct WideMark {
  std::string_view bytes;
  std::string_view family;
  std::string_view encoding;
};

// UTF-32 first: its little-endian mark starts with that of UTF-16.
constexpr std::array<WideMark, 4> kWideMarks{
    {{std::string_view("\xFF\xFE\0\0", 4), "UTF-32", "UTF-32LE"},
     {std::string_view("\0\0\xFE\xFF", 4), "UTF-32", "UTF-32BE"},
     {"\xFF\xFE", "UTF-16", "UTF-16LE"},
     {"\xFE\xFF", "UTF-16", "UTF-16BE"}}};

/// "UTF-16" for every spelling of it, with or without a byte order; "" for other encodings.
std::string_view WideFamily(const std::string& encoding) {
  std::string name;
  for (const char c : encoding) {
    if (c != '-' && c != '_') name += ToUpperAscii(c);
  }
  if (name.starts_with("UTF16")) return "UTF-16";
  if (name.starts_with("UTF32")) return "UTF-32";
  return {};
}

/// iconv's UTF-16 writes a mark and a byte order of its own choice, so the byte order is settled
/// here: by the mark, else as named, else little-endian.
std::string SettledEncoding(std::string_view bytes, const std::string& encoding) {
  if (bytes.starts_with(kByteOrderMark)) return "UTF-8";
  const std::string_view family = WideFamily(encoding);
  if (family.empty()) return encoding;
  for (const WideMark& mark : kWideMarks) {
    if (mark.family == family && bytes.starts_with(mark.bytes)) return std::string(mark.encoding);
  }
  const bool namesByteOrder = StartsWithIgnoringCase(encoding.substr(encoding.size() - 2), "LE") ||
                              StartsWithIgnoringCase(encoding.substr(encoding.size() - 2), "BE");
  return namesByteOrder ? encoding : std::string(family) + "LE";
}

void RefuseWideText(std::string_view bytes, const std::string& path) {
  for (const WideMark& mark : kWideMarks) {
    if (!bytes.starts_with(mark.bytes)) continue;
    const std::string family(mark.family);
    throw SourceError(
        path, 1, 1,
        "the file starts with a " + family + " byte-order mark; give --encoding " + family);
  }
}

SourceError ErrorBehind(std::string_view text, const std::string& path,
                        const std::string& problem) {
  const TextPosition position = PositionBehind(text);
  return {path, position.line, position.column, problem};
}

/// decode gives the text of what stands before the zero byte.
template <typename Decoder>
void RefuseZeroBytes(std::string_view text, const std::string& path, Decoder decode) {
  const auto zero = text.find('\0');
  if (zero == std::string_view::npos) return;
  throw ErrorBehind(decode(text.substr(0, zero)), path,
                    "this is a binary file (a zero byte stands here); if it is UTF-16 text, give "
                    "--encoding UTF-16");
}

}  // namespace

SourceText DecodeSource(std::string bytes, const std::string& path, const std::string& encoding) {
  TextCodec codec(SettledEncoding(bytes, encoding));
  if (codec.IsAsciiCompatible()) {
    RefuseWideText(bytes, path);
    RefuseZeroBytes(bytes, path,
                    [&](std::string_view before) { return codec.DecodeStart(before); });
  }
  try {
    std::string text = codec.Decode(std::move(bytes));
    if (!codec.IsAsciiCompatible())
      RefuseZeroBytes(text, path, [](std::string_view before) { return before; });
    return {std::move(codec), std::move(text)};
  } catch (const TextCodecError& error) {
    const std::string before = codec.DecodeStart(std::string_view(bytes).substr(0, error.Offset()));
    throw ErrorBehind(before, path,
                      std::string(error.what()) + "; give --encoding with the file's own");
  }
}

TextPosition PositionBehind(std::string_view text) {
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  const auto lineFeeds = std::count(text.begin(), text.end(), '\n');
  const auto lastLineFeed = text.rfind('\n');
  if (lastLineFeed != std::string_view::npos) text.remove_prefix(lastLineFeed + 1);
  return {static_cast<int>(lineFeeds) + 1, CharacterCount(text) + 1};
}

}  // namespace brimwork
