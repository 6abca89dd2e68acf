#include "cli/html_index.h"

#include <filesystem>
#include <string_view>

#include "cli/html_text.h"
#include "environment/text.h"

namespace brimwork {
namespace {

constexpr std::string_view kStyle = R"(
:root { color-scheme: light dark; }
body { max-width: 60rem; margin: 3rem auto; padding: 0 1.5rem;
  font: 1rem/1.5 system-ui, "Segoe UI", "Liberation Sans", sans-serif; }
h1 { margin: 0; font-size: 1.75rem; line-height: 1.25; overflow-wrap: anywhere; }
p { margin: .25rem 0 1.5rem; opacity: .75; }
table { width: 100%; border-collapse: collapse; }
th, td { padding: .45rem .75rem; text-align: left; vertical-align: baseline;
  border-bottom: 1px solid rgba(128, 128, 128, .35); }
th { border-bottom-width: 2px; }
th:first-child, td:first-child { padding-left: 0; overflow-wrap: break-word; }
th:last-child, td:last-child { padding-right: 0; }
.lines { text-align: right; font-variant-numeric: tabular-nums; white-space: nowrap; }
.file { font-family: "Courier New", "Liberation Mono", monospace; font-size: .9em;
  overflow-wrap: anywhere; }
a { color: #000080; font-weight: 600; text-decoration: none; }
a:hover, a:focus { text-decoration: underline; }
@media (prefers-color-scheme: dark) { a { color: #9db4ff; } }
)";

struct Kind {
  std::string_view extension;
  const char* name;
};

constexpr Kind kKinds[] = {
    {".bas", "Module"},       {".cls", "Class module"},  {".frm", "Form"},
    {".ctl", "User control"}, {".pag", "Property page"}, {".dob", "User document"},
    {".dsr", "Designer"},
};

std::string Counted(long long count, const std::string& noun) {
  return std::to_string(count) + ' ' + noun + (count == 1 ? "" : "s");
}

std::string Totals(const IndexPage& page) {
  long long lines = 0;
  for (const IndexEntry& entry : page.entries) lines += entry.lines;
  return Counted(static_cast<long long>(page.entries.size()), "module") + ", " +
         Counted(lines, "line");
}

std::string Row(const IndexEntry& entry) {
  return "<tr><td><a href=\"" + PercentEncoded(entry.page) + "\">" + HtmlText(entry.module) +
         "</a></td><td>" + KindOfModule(entry.source) + "</td><td class=\"file\">" +
         HtmlText(entry.source) + "</td><td class=\"lines\">" + std::to_string(entry.lines) +
         "</td></tr>\n";
}

}  // namespace

std::string HtmlIndex(const IndexPage& page) {
  const std::string title = HtmlText(page.title);
  std::string html =
      "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
      "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n";
  html.append("<title>").append(title).append("</title>\n<style>").append(kStyle);
  html.append("</style>\n</head>\n<body>\n<h1>").append(title).append("</h1>\n<p>");
  html.append(Totals(page)).append("</p>\n<table>\n<thead>\n<tr><th>Module</th><th>Kind</th>");
  html.append("<th>File</th><th class=\"lines\">Lines</th></tr>\n</thead>\n<tbody>\n");
  for (const IndexEntry& entry : page.entries) html += Row(entry);
  return html.append("</tbody>\n</table>\n</body>\n</html>\n");
}

std::string KindOfModule(const std::string& source) {
  const std::string extension = std::filesystem::path(source).extension().string();
  for (const Kind& kind : kKinds) {
    if (EqualNames(kind.extension, extension)) return kind.name;
  }
  return "Source file";
}

}  // namespace brimwork
