// Text between its bytes on disk and the UTF-8 of the inside, without loss: what was decoded
// encodes to exactly the bytes it came from.
#pragma once

#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

namespace brimwork {

class TextCodecError : public std::runtime_error {
 public:
  TextCodecError(const std::string& problem, std::size_t offset)
      : std::runtime_error(problem), offset_(offset) {}

  /// Where it went wrong: in the bytes when decoding, in the UTF-8 text when encoding.
  std::size_t Offset() const { return offset_; }

 private:
  std::size_t offset_;
};

/// A codec remembers what it looked up and which byte forms it met, so text is encoded by the codec
/// that decoded it. One object is used by one thread at a time.
class TextCodec {
 public:
  /// encoding: a name that iconv knows, in any case ("WINDOWS-1252", "UTF-8", "CP932").
  /// Throws std::invalid_argument for a name that it does not know.
  explicit TextCodec(std::string encoding);
  TextCodec(TextCodec&&) noexcept;
  TextCodec& operator=(TextCodec&&) noexcept;
  ~TextCodec();

  const std::string& Encoding() const { return encoding_; }

  /// True when ASCII bytes are ASCII text in any place. Then each line can be encoded alone; in
  /// the other encodings (UTF-16, EBCDIC, ISO-2022) only the whole text gives the whole's bytes.
  bool IsAsciiCompatible() const;

  /// Throws TextCodecError at the first byte that is no text, or that would not come back; bytes
  /// stays as it was then.
  std::string Decode(std::string&& bytes);

  /// As much of the bytes as is text, for telling where a character stands; never throws
  /// TextCodecError.
  std::string DecodeStart(std::string_view bytes);

  /// The bytes of text: text itself when it needs no change, else buffer, which is overwritten.
  /// Throws TextCodecError at the first character that the encoding has not.
  std::string_view Encode(std::string_view text, std::string& buffer);

  /// Text for the user's eyes: byte forms that came in as private code points become the
  /// characters that they mean.
  std::string ForDisplay(std::string_view text) const;
  /// Whether such byte forms came in at all; else every text is its own display.
  bool HasAliases() const;

 private:
  class Way;
  class Utf8Way;
  class TableWay;
  class WholeWay;

  std::string encoding_;
  std::unique_ptr<Way> way_;
};

}  // namespace brimwork
