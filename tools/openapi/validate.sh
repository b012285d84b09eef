#!/usr/bin/env bash
# Checks an OpenAPI document (qbapi openapi) against the OpenAPI 3.1 schema with the validator pinned in
# package-lock.json beside this script; installs it from the lock file on first use. Needs node and npm.
#   tools/openapi/validate.sh build/default/openapi.json
set -euo pipefail
here="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
if [ $# -ne 1 ]; then
  echo "usage: $0 DOCUMENT" >&2
  exit 2
fi
if [ ! -d "$here/node_modules" ]; then
  npm ci --prefix "$here" --no-audit --no-fund --loglevel=error
fi
node "$here/node_modules/@seriousme/openapi-schema-validator/bin/validate-api-cli.js" "$1"
