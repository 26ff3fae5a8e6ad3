#!/usr/bin/env bash
# Regenerates the editor definitions and compares them with editors/, tries
# the TextMate grammar's rules on samples, and, where kate-syntax-highlighter
# is installed, colours a sample with the KSyntaxHighlighting definition and
# checks the format of each kind of word.
#
#   check_syntax_files.sh <tamrix-syntax> <editors-folder> <work-folder>
set -euo pipefail

tool=$1
editors=$2
work=$3
rm -rf "$work"
mkdir -p "$work/org.kde.syntax-highlighting/syntax"

failed=0
"$tool" kate >"$work/tamrix.xml"
"$tool" textmate >"$work/tamrix.tmLanguage.json"
for file in tamrix.xml tamrix.tmLanguage.json; do
  if ! diff -u --label "$editors/$file" --label regenerated "$editors/$file" "$work/$file"; then
    echo "FAIL: $file differs from what tamrix-syntax writes; regenerate it with"
    echo "  build/tamrix-syntax ${file%%.*}  (kate for the .xml, textmate for the .json)"
    failed=1
  fi
done
python3 "$(dirname "$0")/textmate_rules.py" "$work/tamrix.tmLanguage.json" || failed=1
[[ $failed -eq 0 ]] || exit 1

if ! command -v kate-syntax-highlighter >/dev/null; then
  echo "ok: the files are up to date (kate-syntax-highlighter is not installed: colours not checked)"
  exit 0
fi
cp "$work/tamrix.xml" "$work/org.kde.syntax-highlighting/syntax/"
cat >"$work/sample.tam" <<'SAMPLE'
' a comment with Write in it
Var total Integer, name String
name = "If Write ' no comment"
Top:
If total < 3
  total = total + Square(2)
  GoTo Top
EndIf
Write name, LinSize
Rep.TestEndPage
EndProgram
Function Square(n Integer) Integer
  Return n * n
EndFunction
SAMPLE
# The format trace writes each coloured piece as <piece>[format].
XDG_DATA_HOME="$work" XDG_DATA_DIRS="$work" QT_QPA_PLATFORM=offscreen \
  kate-syntax-highlighter -s Tamrix -f ansi --syntax-trace format "$work/sample.tam" 2>"$work/stderr" |
  sed 's/\x1b\[[0-9;]*[mK]//g' >"$work/formats.txt"
# Each piece: line of the sample, its text, the format it must have.
if ! python3 "$(dirname "$0")/syntax_formats.py" "$work/tamrix.xml" "$work/formats.txt" "$work/sample.tam" \
  "1|' a comment|Comment" '3|"If Write|String' '2|Var|Control' '2|Integer|Data Type' \
  '4|Top:|Label' '5|If|Control' '5|3|Number' '6|2|Number' '7|GoTo|Control' '9|Write|Command' \
  '9|LinSize|Built-in' '10|Rep.TestEndPage|Command' '12|Function|Control' \
  '12|Square|Declared Name' '12|Integer|Data Type' '13|Return|Control'; then
  cat "$work/formats.txt" "$work/stderr"
  exit 1
fi
echo "ok: the editor files are up to date and colour the sample"
