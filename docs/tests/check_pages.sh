#!/bin/sh
# The API reference as a reader gets it: a headless browser renders each page below, which must exist, not
# be empty and show the texts listed for it; and the search index must find the accessors that the
# Dictionary face's declaration macros generate.
#
#   check_pages.sh HTML_DIR [CHROMIUM]
set -u
html=${1:?usage: check_pages.sh HTML_DIR [CHROMIUM]}
chromium=${2:-/usr/bin/chromium}
profile=$(mktemp -d)
trap 'rm -rf "$profile"' EXIT
failures=0

fail() {
  echo "FAIL $1"
  failures=$((failures + 1))
}

# check PAGE PATTERN...: each PATTERN an extended regular expression over the page's rendered DOM, its
# lines joined into one.
check() {
  page=$1
  shift
  if [ ! -s "$html/$page" ]; then
    fail "$page: missing or empty"
    return
  fi
  dom=$("$chromium" --headless --no-sandbox --disable-gpu --disable-quic --no-first-run \
    --disable-background-networking --disable-component-update --disable-sync --user-data-dir="$profile" \
    --dump-dom "file://$html/$page" 2>/dev/null | tr -d '\n')
  if [ -z "$dom" ]; then
    fail "$page: $chromium rendered nothing"
    return
  fi
  missing=0
  for pattern in "$@"; do
    printf '%s' "$dom" | grep -Eq -- "$pattern" || { fail "$page: nothing matches $pattern"; missing=1; }
  done
  [ "$missing" -ne 0 ] || echo "ok   $page ($# texts)"
}

# A table row: key, then what the Dictionary face and the Typed face require.
row() {
  echo "<code>$1</code> *</td> *<td[^>]*>$2 *</td> *<td[^>]*>$3 *</td>"
}

# The start page is README.md under the project's name, with the menu its scripts build.
check index.html \
  '<title>QBComponentAPI: ' \
  'id="projectname">QBComponentAPI' \
  'A first call</h1>' \
  'Host, mock service and the qbapi tool</h1>' \
  'href="annotated.html"'

# The guides are pages of the reference too.
check md_docs_getting_started.html \
  '<title>QBComponentAPI: Getting started</title>' \
  'QB_BASE_URL'

# The generated pages: every record's keys, every endpoint's keys.
check records.html \
  'Records: JSON keys' \
  'qb::QBAPIUser and qb::UserModel</h1>' \
  "$(row user_id required required)" \
  'qb::ShareUrlModel</h1>'
check endpoint_keys.html \
  'POST v3/user/get_config</h1>' \
  'Dictionary face: <a[^>]*>qb::QBUserGetConfigMessage</a>'

# A message: its generated accessors, and its parameter and reply keys in each face.
check classqb_1_1QBUserGetConfigMessage.html \
  'qb::QBUserGetConfigMessage Class Reference' \
  '>countryCode</a> *\(\) const' \
  '>setCountryCode</a> *\(std::optional' \
  '>initWithData</a>' \
  '<h2>Parameter keys</h2>' \
  "$(row country_code required required)" \
  "$(row language_code 'optional, 0 when absent' required)" \
  '<h2>Reply keys</h2>' \
  "$(row other_configs optional required)"

# A record: required and optional keys of both faces.
check classqb_1_1QBAPIClientConfig.html \
  '>autoUpdate</a> *\(\) const' \
  '<h2>JSON keys</h2>' \
  "$(row auto_update required required)" \
  "$(row share_app_url optional optional)"

# A Typed-face request: a file key travels as a multipart part.
check structqb_1_1UserUpdateRequest.html \
  '<h2>Parameter keys</h2>' \
  "$(row avatar '—' 'optional, a multipart part')"

# The host's client, documented from /// comments.
check classqb_1_1host_1_1Client.html \
  'Thread-safe: one client may serve every thread of an app' \
  '>setAccessToken</a>'

# The search index (search/all_*.js, one line per name) finds the generated accessors on their classes.
for entry in QBUserGetConfigMessage:countryCode QBUserGetConfigMessage:setCountryCode \
  QBAPIClientConfig:legalConfig QBAPIClientConfig:setLegalConfig; do
  class=${entry%%:*}
  name=${entry#*:}
  key=$(printf '%s' "$name" | tr 'A-Z' 'a-z')
  grep -hs "^ *\['${key}_[0-9]*',\['$name'," "$html"/search/all_*.js | grep -qF "classqb_1_1$class.html#" ||
    fail "search index: no $name on qb::$class"
done

if [ "$failures" -ne 0 ]; then
  echo "$failures checks failed"
  exit 1
fi
echo "all pages render as expected"
