# Reads what shards of a test program printed. Prints the output of each test that failed and of the
# one in which a shard broke off, "skipped NAME: REASON" for each skipped test, and at the end
# "count PASSED FAILED SKIPPED".

# "[  FAILED  ] Suite.Test (3 ms)" and its like; the lists at the end have no time.
function TestName(line) {
  sub(/^\[[^]]*\] /, "", line)
  sub(/ \([0-9]+ ms\)$/, "", line)
  sub(/, where .*$/, "", line)
  return line
}

function Forget() {
  output = ""
  reason = ""
  inReason = 0
  test = ""
}

function Fail(what) {
  ++failed
  ++failedInShard
  print what
}

# Windows programs end their lines so.
{ sub(/\r$/, "") }
FNR == 1 { Forget(); done = 0; failedInShard = 0; behindTests = "" }

/^\[ RUN      \] / {
  Forget()
  test = TestName($0)
}
/^\[       OK \] .* \([0-9]+ ms\)$/ { ++passed; Forget(); next }
/^\[  SKIPPED \] .* \([0-9]+ ms\)$/ {
  ++skipped
  print "skipped " TestName($0) ": " (reason == "" ? "no reason given" : reason)
  Forget()
  next
}
/^\[  FAILED  \] .* \([0-9]+ ms\)$/ {
  Fail(output $0)
  Forget()
  next
}
/^\[ DISABLED \] / && !($0 in disabled) {
  disabled[$0]
  ++skipped
  print "skipped " TestName($0) ": disabled"
  next
}
/^\[==========\] .* ran\. / { Forget(); done = 1; next }

/^shard ended [0-9]+$/ {
  exitCode = "(exit code " $3 ($3 == 124 ? ", out of time)" : ")")
  if (!done) Fail(output (test == "" ? "the test program" : test) " broke off " exitCode)
  else if ($3 != 0 && !failedInShard) Fail(behindTests "the test program ended badly " exitCode)
  next
}

# A leak is reported when all tests have run.
done { behindTests = behindTests $0 "\n" }

test != "" {
  output = output $0 "\n"
  if (inReason && $0 != "") reason = reason == "" ? $0 : reason " " $0
  if ($0 ~ /: Skipped$/) inReason = 1
}

END { print "count", passed + 0, failed + 0, skipped + 0 }
