#!/usr/bin/env python3
"""Runs one block of the markdown files against a fresh mock service.

  run_with_mock.py QBAPI_MOCK QB_DOC_BLOCKS NAME

Starts `QBAPI_MOCK 0` (a free port; it prints the URL it serves), runs `QB_DOC_BLOCKS NAME` with
QB_BASE_URL set to that URL, then stops the service. Fails when the block fails or the service does not
end cleanly.
"""

import os
import re
import subprocess
import sys

BLOCK_TIMEOUT = 50  # seconds; ctest's own limit is a little longer
URL = re.compile(r"(http://127\.0\.0\.1:\d+/)")


def main(argv):
    if len(argv) != 3:
        print(__doc__, file=sys.stderr)
        return 2
    mock_program, blocks_program, name = argv
    mock = subprocess.Popen([mock_program, "0"], stdout=subprocess.PIPE, text=True)
    try:
        first = mock.stdout.readline()
        url = URL.search(first)
        if not url:
            print(f"run_with_mock: {mock_program} printed no URL: {first!r}", file=sys.stderr)
            return 1
        env = dict(os.environ, QB_BASE_URL=url.group(1))
        try:
            status = subprocess.run([blocks_program, name], env=env, timeout=BLOCK_TIMEOUT).returncode
        except subprocess.TimeoutExpired:
            print(f"run_with_mock: {name} ran longer than {BLOCK_TIMEOUT} s", file=sys.stderr)
            return 1
    finally:
        mock.terminate()
        try:
            mock_status = mock.wait(timeout=10)
        except subprocess.TimeoutExpired:
            mock.kill()
            mock_status = mock.wait()
        mock.stdout.close()
    if status != 0:
        print(f"run_with_mock: {name} exited with {status}", file=sys.stderr)
        return 1
    if mock_status != 0:
        print(f"run_with_mock: the mock service exited with {mock_status}", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
