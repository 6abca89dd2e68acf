# Reads the JUnit file that ctest wrote. Prints "skipped NAME: REASON" for each skipped test, then
# "count PASSED FAILED SKIPPED".
#
# ctest marks a test that could not be started (no executable) like one that skipped itself, as
# "notrun"; only the message tells them apart, and the former counts as failed.

function Unescaped(text) {
  gsub(/&lt;/, "<", text)
  gsub(/&gt;/, ">", text)
  gsub(/&quot;/, "\"", text)
  gsub(/&apos;/, "'", text)
  gsub(/&amp;/, "\\&", text)
  return text
}

function Attribute(name) {
  if (!match($0, " " name "=\"[^\"]*\"")) return ""
  return Unescaped(substr($0, RSTART + length(name) + 3, RLENGTH - length(name) - 4))
}

function Append(line) {
  sub(/^[ \t]+/, "", line)
  reason = reason == "" ? line : reason " " line
}

/^\t<testcase / {
  name = Attribute("name")
  status = Attribute("status")
  reason = status == "disabled" ? "disabled" : ""
  inReason = 0
  next
}

/^\t\t<skipped / && status == "notrun" && Attribute("message") ~ /^SKIP_/ {
  status = "skipped"
  next
}

/^\t<\/testcase>/ {
  if (status == "run") {
    ++passed
  } else if (status == "skipped" || status == "disabled") {
    ++skipped
    print "skipped " name ": " (reason == "" ? "no reason given" : reason)
  } else {
    ++failed
  }
  next
}

status == "skipped" && /: Skipped$/ { inReason = 1; next }
/^\[  SKIPPED \]/ { inReason = 0 }
inReason { Append(Unescaped($0)) }

END { print "count", passed + 0, failed + 0, skipped + 0 }
