#include "memory/code_page_text.h"

#include <array>
#include <stdexcept>

#include "environment/utf8.h"

namespace brimwork {
namespace {

using Outcome = EncodingConverter::Outcome;

constexpr char32_t kReplacement = 0xFFFD;

std::string EncodingName(int codePage) {
  if (codePage == 65001) return "UTF-8";
  if (codePage == 10000) return "MACINTOSH";
  return "CP" + std::to_string(codePage);
}

/// None when the system knows no such code page.
std::shared_ptr<EncodingConverter> MakeConverter(int codePage) {
  try {
    return std::make_shared<EncodingConverter>(EncodingName(codePage), "UTF-8");
  } catch (const std::invalid_argument&) {
    return {};
  }
}

}  // namespace

CodePageText::Decoded CodePageText::Decode(int codePage, std::string_view bytes) {
  const auto converter = ConverterOf(codePage);
  Decoded decoded;
  while (!bytes.empty()) {
    const auto result = converter->Convert(bytes);
    decoded.text += result.converted;
    bytes.remove_prefix(result.consumed);
    if (bytes.empty()) break;
    decoded.isCutOff = result.outcome == Outcome::kTruncated;
    if (decoded.isCutOff) break;
    AppendUtf8(decoded.text, kReplacement);
    bytes.remove_prefix(1);
  }
  return decoded;
}

std::shared_ptr<EncodingConverter> CodePageText::ConverterOf(int codePage) {
  const auto known = converters_.find(codePage);
  if (known != converters_.end()) return known->second;
  auto converter = MakeConverter(codePage);
  if (!converter) converter = ConverterOf(kWestern);
  converters_.emplace(codePage, converter);
  return converter;
}

int CodePageOfCharset(int charset, int documentCodePage) {
  struct Charset {
    int charset;
    int codePage;
  };
  constexpr std::array<Charset, 19> kCharsets = {{{0, 1252},
                                                  {2, 1252},
                                                  {77, 10000},
                                                  {128, 932},
                                                  {129, 949},
                                                  {130, 1361},
                                                  {134, 936},
                                                  {136, 950},
                                                  {161, 1253},
                                                  {162, 1254},
                                                  {163, 1258},
                                                  {177, 1255},
                                                  {178, 1256},
                                                  {186, 1257},
                                                  {204, 1251},
                                                  {222, 874},
                                                  {238, 1250},
                                                  {254, 437},
                                                  {255, 850}}};
  for (const Charset& known : kCharsets) {
    if (known.charset == charset) return known.codePage;
  }
  return documentCodePage;
}

}  // namespace brimwork
