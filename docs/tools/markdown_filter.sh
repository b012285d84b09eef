#!/bin/sh
# Doxygen input filter for the Markdown pages: a code span in a heading comes out of Doxygen as a literal
# "<tt>" tag, so headings (outside fenced code) lose their backquotes. Everything else passes unchanged.
exec awk '
  /^[ \t]*(```|~~~)/ { fenced = !fenced }
  !fenced && /^#+ / { gsub(/`/, "") }
  { print }
' "$1"
