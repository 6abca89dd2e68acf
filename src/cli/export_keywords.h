// The keyword list of one export, as --keywords names it.
#pragma once

#include <string>

namespace brimwork {

/// option: "builtin", "@" and the path of a file that holds the words, or the list itself.
/// encoding: of a file that is no UTF-8. Throws UsageError, and SourceError for a file that cannot
/// be read.
std::string KeywordsOf(const std::string& option, const std::string& encoding);

}  // namespace brimwork
