#include "memory/text_codec.h"

#include <algorithm>
#include <cstdio>

#include "environment/text.h"
#include "environment/utf8.h"
#include "memory/character_table.h"
#include "memory/encoding_converter.h"

namespace brimwork {
namespace {

TextCodecError UndecodableByte(std::string_view bytes, std::size_t offset,
                               const std::string& encoding) {
  char byte[8];
  std::snprintf(byte, sizeof byte, "0x%02X", static_cast<unsigned char>(bytes[offset]));
  return {std::string("the byte ") + byte + " is no text in " + encoding, offset};
}

TextCodecError UnencodableCharacter(std::string_view text, std::size_t offset,
                                    const std::string& encoding) {
  const std::string_view rest = text.substr(offset);
  const std::size_t size = Utf8Size(rest);
  if (size == 0) return {"the new text is no valid UTF-8", offset};
  char codePoint[16];
  std::snprintf(codePoint, sizeof codePoint, "U+%04X", static_cast<unsigned>(Utf8Character(rest)));
  return {"the character \"" + std::string(rest.substr(0, size)) + "\" (" + codePoint +
              ") does not exist in " + encoding,
          offset};
}

bool IsUtf8Name(const std::string& encoding) {
  std::string name;
  for (const char c : encoding) {
    if (c != '-' && c != '_') name += ToUpperAscii(c);
  }
  return name == "UTF8";
}

std::invalid_argument UnknownEncoding(const std::string& encoding) {
  return std::invalid_argument("unknown encoding \"" + encoding +
                               "\"; \"iconv -l\" lists the names that can be given");
}

/// The plain name in "NAME//", as lists of encodings have it. Other things that iconv takes are
/// refused: no name at all for the locale's encoding, and "NAME//TRANSLIT" for leave to change the
/// text.
std::string PlainName(const std::string& encoding) {
  std::string name = encoding;
  if (name.ends_with("//")) name.resize(name.size() - 2);
  const bool hasName = std::any_of(name.begin(), name.end(), [](char c) {
    return (ToUpperAscii(c) >= 'A' && ToUpperAscii(c) <= 'Z') || (c >= '0' && c <= '9');
  });
  if (!hasName || Contains(name, "//") || Contains(name, ",")) throw UnknownEncoding(encoding);
  return name;
}

std::size_t FirstInvalidUtf8(std::string_view text) {
  std::size_t at = FindNonAscii(text, 0);
  while (at < text.size()) {
    const std::size_t size = Utf8Size(text.substr(at));
    if (size == 0) return at;
    at = FindNonAscii(text, at + size);
  }
  return text.size();
}

}  // namespace

class TextCodec::Way {
 public:
  virtual ~Way() = default;
  virtual bool IsAsciiCompatible() const { return true; }
  virtual std::string Decode(std::string&& bytes, const std::string& encoding) = 0;
  virtual std::string DecodeStart(std::string_view bytes) = 0;
  virtual std::string_view Encode(std::string_view text, std::string& buffer,
                                  const std::string& encoding) = 0;
  virtual std::string ForDisplay(std::string_view text) const { return std::string(text); }
  virtual bool HasAliases() const { return false; }
};

class TextCodec::Utf8Way : public Way {
 public:
  std::string Decode(std::string&& bytes, const std::string& encoding) override {
    const std::size_t invalid = FirstInvalidUtf8(bytes);
    if (invalid != bytes.size()) throw UndecodableByte(bytes, invalid, encoding);
    return std::move(bytes);
  }

  std::string DecodeStart(std::string_view bytes) override {
    return std::string(bytes.substr(0, FirstInvalidUtf8(bytes)));
  }

  std::string_view Encode(std::string_view text, std::string&,
                          const std::string& encoding) override {
    if (IsAscii(text)) return text;
    const std::size_t invalid = FirstInvalidUtf8(text);
    if (invalid != text.size()) throw UnencodableCharacter(text, invalid, encoding);
    return text;
  }
};

class TextCodec::TableWay : public Way {
 public:
  explicit TableWay(CharacterTable table) : table_(std::move(table)) {}

  std::string Decode(std::string&& bytes, const std::string& encoding) override {
    const std::size_t plain = FindNonAscii(bytes, 0);
    if (plain == bytes.size()) return std::move(bytes);
    std::string text;
    const std::size_t decoded = DecodeTo(text, bytes);
    if (decoded != bytes.size()) throw UndecodableByte(bytes, decoded, encoding);
    return text;
  }

  std::string DecodeStart(std::string_view bytes) override {
    std::string text;
    DecodeTo(text, bytes);
    return text;
  }

  std::string_view Encode(std::string_view text, std::string& buffer,
                          const std::string& encoding) override {
    if (IsAscii(text)) return text;
    std::size_t at = FindNonAscii(text, 0);
    buffer.assign(text, 0, at);
    while (at < text.size()) {
      const std::size_t size = Utf8Size(text.substr(at));
      const std::string_view bytes =
          size == 0 ? std::string_view() : table_.Encode(Utf8Character(text.substr(at)));
      if (bytes.empty()) throw UnencodableCharacter(text, at, encoding);
      buffer += bytes;
      const std::size_t next = FindNonAscii(text, at + size);
      buffer.append(text, at + size, next - at - size);
      at = next;
    }
    return buffer;
  }

  std::string ForDisplay(std::string_view text) const override {
    if (!HasAliases()) return std::string(text);
    std::string display;
    for (std::size_t at = 0; at < text.size();) {
      const std::size_t size = Utf8Size(text.substr(at));
      const std::string_view character = text.substr(at, std::max<std::size_t>(size, 1));
      const std::string_view alias =
          size == 0 ? std::string_view() : table_.AliasText(Utf8Character(character));
      display += alias.empty() ? character : alias;
      at += character.size();
    }
    return display;
  }

  bool HasAliases() const override { return table_.HasAliases(); }

 private:
  /// Returns the offset of the first undecodable byte, the size when there is none.
  std::size_t DecodeTo(std::string& text, std::string_view bytes) {
    text.reserve(bytes.size() + 3 * CountNonAscii(bytes));  // a byte becomes four at most
    for (std::size_t at = 0;;) {
      const std::size_t plain = FindNonAscii(bytes, at);
      text.append(bytes, at, plain - at);
      if (plain == bytes.size()) return plain;
      const CharacterTable::Decoded decoded = table_.Decode(bytes.substr(plain));
      if (decoded.size == 0) return plain;
      AppendUtf8(text, decoded.character);
      at = plain + decoded.size;
    }
  }

  CharacterTable table_;
};

class TextCodec::WholeWay : public Way {
 public:
  explicit WholeWay(const std::string& encoding)
      : fromEncoding_(encoding, "UTF-8"), toEncoding_("UTF-8", encoding) {}

  bool IsAsciiCompatible() const override { return false; }

  std::string Decode(std::string&& bytes, const std::string& encoding) override {
    auto decoded = fromEncoding_.Convert(bytes);
    if (decoded.outcome != EncodingConverter::Outcome::kComplete)
      throw UndecodableByte(bytes, std::min(decoded.consumed, bytes.size() - 1), encoding);
    const auto again = toEncoding_.Convert(decoded.converted);
    const auto [differs, unused] =
        std::mismatch(bytes.begin(), bytes.end(), again.converted.begin(), again.converted.end());
    if (bytes != again.converted) {
      throw TextCodecError("the text would not come back as the same bytes in " + encoding,
                           static_cast<std::size_t>(differs - bytes.begin()));
    }
    return std::move(decoded.converted);
  }

  std::string DecodeStart(std::string_view bytes) override {
    return fromEncoding_.Convert(bytes).converted;
  }

  std::string_view Encode(std::string_view text, std::string& buffer,
                          const std::string& encoding) override {
    auto encoded = toEncoding_.Convert(text);
    if (encoded.outcome != EncodingConverter::Outcome::kComplete)
      throw UnencodableCharacter(text, encoded.consumed, encoding);
    buffer = std::move(encoded.converted);
    return buffer;
  }

 private:
  EncodingConverter fromEncoding_;
  EncodingConverter toEncoding_;
};

TextCodec::TextCodec(std::string encoding) : encoding_(std::move(encoding)) {
  if (IsUtf8Name(encoding_)) {
    way_ = std::make_unique<Utf8Way>();
    return;
  }
  const std::string name = PlainName(encoding_);
  try {
    CharacterTable table(name);
    if (table.IsAsciiCompatible()) {
      way_ = std::make_unique<TableWay>(std::move(table));
    } else {
      way_ = std::make_unique<WholeWay>(name);
    }
  } catch (const std::invalid_argument&) {
    throw UnknownEncoding(encoding_);
  }
}

TextCodec::TextCodec(TextCodec&&) noexcept = default;
TextCodec& TextCodec::operator=(TextCodec&&) noexcept = default;
TextCodec::~TextCodec() = default;

bool TextCodec::IsAsciiCompatible() const { return way_->IsAsciiCompatible(); }

std::string TextCodec::Decode(std::string&& bytes) {
  return way_->Decode(std::move(bytes), encoding_);
}

std::string TextCodec::DecodeStart(std::string_view bytes) { return way_->DecodeStart(bytes); }

std::string_view TextCodec::Encode(std::string_view text, std::string& buffer) {
  return way_->Encode(text, buffer, encoding_);
}

std::string TextCodec::ForDisplay(std::string_view text) const { return way_->ForDisplay(text); }

bool TextCodec::HasAliases() const { return way_->HasAliases(); }

}  // namespace brimwork
