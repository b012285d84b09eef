#!/usr/bin/env python3
"""The code blocks of README.md and docs/*.md, as ctest checks them.

Every fenced ```cpp block is one of:
  a program   it contains `int main(`; compiled as it stands but for its leading preprocessor lines, the
              rest inside a namespace of its own so that every block can share one executable (so main
              must end in a return; falling off it fails the build),
  a fragment  the line before its fence is `<!-- snippet: NAME -->`; its leading preprocessor lines go to
              file scope and the rest becomes the body of a member function of a class deriving from the
              `Prelude` of tests/docs/preludes/NAME.hpp, run after the prelude's constructor,
  an excerpt  the line before its fence is `<!-- excerpt: path/in/repo -->`; not compiled, its non-blank
              lines must appear in that file in the same order (runs of blanks count as one space).
The ```cmake blocks of README.md must name what the consumer app (tests/consumers/CMakeLists.txt) uses:
each of their lines that is not a comment appears there, once the places the README leaves to the reader
are read as the consumer's (see CONSUMER_PLACEHOLDERS).

Commands (FILES are markdown paths relative to --source-dir):
  list     prints one `KIND NAME` line per checked block: KIND is program, fragment, excerpt or cmake
  generate writes NAME.cpp for each program and fragment and blocks.cpp, the table the runner picks a
           block from, into --out (rewriting only files whose text changed); fails, naming the file and
           line, on a ```cpp block that is none of the three kinds or names a prelude that does not exist
  check    checks the excerpt or cmake block --block NAME
"""

import argparse
import os
import re
import sys
from dataclasses import dataclass, field

SNIPPET = re.compile(r"^\s*<!--\s*snippet:\s*(\S+)\s*-->\s*$")
EXCERPT = re.compile(r"^\s*<!--\s*excerpt:\s*(\S+)\s*-->\s*$")
FENCE = re.compile(r"^(\s*)(`{3,}|~{3,})\s*([^`\s]*)")
HEADING = re.compile(r"^#{1,6}\s+(.*?)\s*#*\s*$")
MAIN = re.compile(r"\bint\s+main\s*\(")
PRELUDE_NAME = re.compile(r"^[A-Za-z_][A-Za-z0-9_]*$")

CONSUMER_APP = "tests/consumers/CMakeLists.txt"
# What the README writes where the reader fills in their own, and what the consumer app writes there: the
# checkout of this repository (which the app, living outside it, must give a binary folder) and the
# app's target.
CONSUMER_PLACEHOLDERS = [
    ("add_subdirectory(third_party/QBComponentAPI)", "add_subdirectory(${QB_SOURCE_DIR} qb)"),
    ("SOURCE_DIR /path/to/QBComponentAPI)", "SOURCE_DIR ${QB_SOURCE_DIR} BINARY_DIR ${CMAKE_BINARY_DIR}/qb)"),
    ("target_link_libraries(app ", "target_link_libraries(consumer "),
]


class BlockError(Exception):
    """A block that cannot be checked; the message starts with its file and line."""


@dataclass
class Block:
    path: str  # the markdown file, relative to the source folder
    line: int  # of the opening fence
    language: str
    heading: str
    annotation: str  # the line before the fence
    lines: list = field(default_factory=list)
    name: str = ""
    kind: str = ""  # program, fragment, excerpt, cmake, unknown (refused); empty when not checked
    target: str = ""  # the prelude of a fragment, the excerpted file of an excerpt

    def where(self):
        return f"{self.path}:{self.line}"


def slug(text):
    text = re.sub(r"[^A-Za-z0-9]+", "_", text.replace("`", "")).strip("_")
    return text.lower()


def parse(path, text):
    """The fenced blocks of one markdown text, in order."""
    blocks = []
    heading = ""
    previous = ""
    open_block = None
    closing = None
    for number, line in enumerate(text.splitlines(), start=1):
        if open_block is not None:
            stripped = line.strip()
            if stripped.startswith(closing) and set(stripped) == {closing[0]}:
                blocks.append(open_block)
                open_block = None
            else:
                open_block.lines.append(line)
            continue
        fence = FENCE.match(line)
        if fence:
            open_block = Block(path, number, fence.group(3).lower(), heading, previous.strip())
            closing = fence.group(2)
        else:
            title = HEADING.match(line)
            if title:
                heading = title.group(1)
        previous = line
    if open_block is not None:
        raise BlockError(f"{path}:{open_block.line}: the block is not closed")
    return blocks


def classify(block):
    if block.language == "cpp":
        snippet = SNIPPET.match(block.annotation)
        excerpt = EXCERPT.match(block.annotation)
        if snippet:
            block.kind, block.target = "fragment", snippet.group(1)
        elif excerpt:
            block.kind, block.target = "excerpt", excerpt.group(1)
        elif any(MAIN.search(line) for line in block.lines):
            block.kind = "program"
        else:
            block.kind = "unknown"
    elif block.language == "cmake" and block.path == "README.md":
        block.kind, block.target = "cmake", CONSUMER_APP


def read_blocks(source_dir, paths):
    """Every checked block of the files, named doc_<file>_<heading>, a counter added when a heading has
    several."""
    blocks = []
    for path in paths:
        with open(os.path.join(source_dir, path), encoding="utf-8") as file:
            text = file.read()
        if path == "README.md":
            stem = "README"
        else:
            stem = "_".join(slug(part) for part in os.path.splitext(path)[0].split("/"))
        seen = {}
        for block in parse(path, text):
            classify(block)
            if not block.kind:
                continue
            base = f"doc_{stem}_{slug(block.heading) or 'top'}"
            seen[base] = seen.get(base, 0) + 1
            block.name = base if seen[base] == 1 else f"{base}_{seen[base]}"
            blocks.append(block)
    return blocks


def normalized(line):
    return " ".join(line.split())


def check_excerpt(source_dir, block):
    """Raises BlockError unless the block's non-blank lines appear in order in its file."""
    target = os.path.join(source_dir, block.target)
    if not os.path.isfile(target):
        raise BlockError(f"{block.where()}: the excerpted file {block.target} does not exist")
    with open(target, encoding="utf-8") as file:
        lines = [normalized(line) for line in file.read().splitlines()]
    at = 0  # the next line of the file a match may use
    for offset, line in enumerate(block.lines, start=1):
        wanted = normalized(line)
        if not wanted:
            continue
        try:
            at = lines.index(wanted, at) + 1
        except ValueError:
            after = f" after its line {at}" if at else ""
            raise BlockError(
                f"{block.path}:{block.line + offset}: not in {block.target}{after}: {line.strip()}") from None


def check_cmake(source_dir, block):
    """Raises BlockError unless every command line of the block is a line of the consumer app."""
    with open(os.path.join(source_dir, block.target), encoding="utf-8") as file:
        app = {normalized(line.split("#")[0]) for line in file.read().splitlines()}
    missing = []
    for offset, line in enumerate(block.lines, start=1):
        command = normalized(line.split("#")[0])
        if not command:
            continue
        for readme, consumer in CONSUMER_PLACEHOLDERS:
            command = command.replace(readme, consumer)
        if command not in app:
            missing.append(f"{block.path}:{block.line + offset}: the consumer app ({block.target}) has no line "
                           f"'{command}'; keep the two the same")
    if missing:
        raise BlockError("\n".join(missing))


def split_leading(block):
    """The leading preprocessor directives, each a list of indexes into block.lines (a directive goes on
    over lines ending in a backslash), and the index of the first line of the rest. Blank and // comment
    lines among the directives belong to neither."""
    directives = []
    index = 0
    while index < len(block.lines):
        stripped = block.lines[index].strip()
        if stripped.startswith("#"):
            directives.append([index])
            while block.lines[index].rstrip().endswith("\\") and index + 1 < len(block.lines):
                index += 1
                directives[-1].append(index)
        elif stripped and not stripped.startswith("//"):
            break
        index += 1
    return directives, index


def source_of(block, generated):
    """The translation unit of a program or fragment. #line points the compiler's messages at the
    markdown."""
    directives, body = split_leading(block)
    out = [f"// Generated by tests/docs/blocks.py from {block.where()}; edit the markdown, not this file."]
    for directive in directives:
        out.append(f'#line {block.line + 1 + directive[0]} "{block.path}"')
        out += [block.lines[index] for index in directive]
    rest = block.lines[body:]

    def here():  # back to this file's own lines, for what is generated around the block
        return f'#line {len(out) + 2} "{generated}"'

    if block.kind == "fragment":
        out.append(here())
        out += [f'#include "preludes/{block.target}.hpp"', "", "namespace {", "struct Block : Prelude {",
                "  void run() {", f'#line {block.line + 1 + body} "{block.path}"']
        out += rest
        out.append(here())
        out += ["  }", "};", "}  // namespace", "", '#include "BlockTable.hpp"', "",
                f"int {block.name}(int, char**) {{ return qb::docs::runFragment<Block>(); }}"]
    else:
        out.append(here())
        out.append(f"namespace {block.name}_program {{")
        out.append(f'#line {block.line + 1 + body} "{block.path}"')
        out += rest
        out.append(here())
        out += [f"}}  // namespace {block.name}_program", "", '#include "BlockTable.hpp"', "",
                f"int {block.name}(int argc, char** argv) {{",
                f"  return qb::docs::callMain(&{block.name}_program::main, argc, argv);", "}"]
    return "\n".join(out) + "\n"


def table_of(blocks):
    out = ["// Generated by tests/docs/blocks.py: every program and fragment of the markdown files.",
           '#include "BlockTable.hpp"', ""]
    out += [f"int {block.name}(int argc, char** argv);" for block in blocks]
    out += ["", "namespace qb::docs {", "", "const std::vector<BlockEntry>& blocks() {",
            "  static const std::vector<BlockEntry> table{"]
    out += [f'      {{"{block.name}", &{block.name}, "{block.path}", {block.line}}},' for block in blocks]
    out += ["  };", "  return table;", "}", "", "}  // namespace qb::docs"]
    return "\n".join(out) + "\n"


def write_if_changed(path, text):
    try:
        with open(path, encoding="utf-8") as file:
            if file.read() == text:
                return
    except FileNotFoundError:
        pass
    with open(path, "w", encoding="utf-8") as file:
        file.write(text)


def generate(source_dir, out_dir, blocks):
    errors = []
    compiled = []
    for block in blocks:
        if block.kind == "unknown":
            errors.append(f"{block.where()}: a ```cpp block needs `int main(` (a program), or on the line before "
                          "its fence <!-- snippet: NAME --> (a fragment) or <!-- excerpt: path --> (an excerpt)")
        elif block.kind == "fragment" and not (PRELUDE_NAME.match(block.target) and os.path.isfile(
                os.path.join(source_dir, "tests/docs/preludes", block.target + ".hpp"))):
            errors.append(f"{block.where()}: no prelude tests/docs/preludes/{block.target}.hpp for this fragment")
        elif block.kind in ("program", "fragment"):
            compiled.append(block)
    if errors:
        raise BlockError("\n".join(errors))
    os.makedirs(out_dir, exist_ok=True)
    wanted = {f"{block.name}.cpp" for block in compiled} | {"blocks.cpp"}
    for stale in set(os.listdir(out_dir)) - wanted:
        if stale.endswith(".cpp"):
            os.remove(os.path.join(out_dir, stale))
    for block in compiled:
        write_if_changed(os.path.join(out_dir, f"{block.name}.cpp"), source_of(block, f"{block.name}.cpp"))
    write_if_changed(os.path.join(out_dir, "blocks.cpp"), table_of(compiled))


def main(argv):
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("command", choices=["list", "generate", "check"])
    parser.add_argument("--source-dir", required=True)
    parser.add_argument("--out")
    parser.add_argument("--block")
    parser.add_argument("files", nargs="*")
    args = parser.parse_intermixed_args(argv)
    try:
        blocks = read_blocks(args.source_dir, args.files)
        if args.command == "list":
            for block in blocks:
                if block.kind != "unknown":
                    print(block.kind, block.name)
        elif args.command == "generate":
            generate(args.source_dir, args.out, blocks)
        else:
            chosen = [block for block in blocks if block.name == args.block]
            if not chosen:
                raise BlockError(f"no block {args.block}")
            checks = {"excerpt": check_excerpt, "cmake": check_cmake}
            if chosen[0].kind not in checks:
                raise BlockError(f"{chosen[0].where()}: {args.block} is a {chosen[0].kind}, which is run, not checked")
            checks[chosen[0].kind](args.source_dir, chosen[0])
    except BlockError as error:
        print(error, file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
