#!/usr/bin/env bash
# qbapi mock start|stop: calls made between them share one service and one session, so an update is
# seen by the get that follows; stop ends the process and forgets it. --verbose shows each attempt.
set -euo pipefail
qbapi="$1"
export QBAPI_MOCK_STATE
QBAPI_MOCK_STATE="$(mktemp -d)/state.json"
trap '"$qbapi" mock stop >/dev/null 2>&1 || true; rm -rf "$(dirname "$QBAPI_MOCK_STATE")"' EXIT

fail() { echo "FAILED: $*" >&2; exit 1; }

url="$("$qbapi" mock start)"
[[ "$url" == http://127.0.0.1:*/ ]] || fail "start printed '$url'"
"$qbapi" mock start >/dev/null 2>&1 && fail "a second start succeeded"
"$qbapi" call user/update nickname=Fern >/dev/null
"$qbapi" call user/get --face typed | grep -q '"nickname": "Fern"' || fail "the update is not seen by the next call"
# --verbose: one line per attempt on stderr, with the path and status and never the session's token.
token="$(python3 -c 'import json,sys; print(json.load(open(sys.argv[1]))["token"])' "$QBAPI_MOCK_STATE")"
log="$("$qbapi" call user/get --verbose 2>&1 >/dev/null)"
grep -q 'GET /v3/user/get attempt 1: HTTP 200' <<<"$log" || fail "--verbose printed '$log'"
grep -qF "$token" <<<"$log" && fail "--verbose printed the token"
pid="$(python3 -c 'import json,sys; print(json.load(open(sys.argv[1]))["pid"])' "$QBAPI_MOCK_STATE")"
"$qbapi" mock stop
# An exited process that nobody has reaped yet has no program any more.
readlink "/proc/$pid/exe" >/dev/null 2>&1 && fail "the service is still running"
[[ ! -e "$QBAPI_MOCK_STATE" ]] || fail "the state file is still there"
# Without a kept service every call gets a fresh in-process one.
"$qbapi" call user/get --face typed | grep -q '"nickname": "Fern"' && fail "a stopped service still answers"
echo "ok"
