#!/usr/bin/env python3
"""Checks blocks.py on markdown written for the purpose: how blocks are told apart and named, what
fails and where it says it failed, and that the translation units it writes compile, report errors at
the markdown's lines and run as the runner expects.

  blocks_selftest.py CXX   (the C++ compiler; the compiling cases are skipped without it)
"""

import os
import subprocess
import sys
import tempfile
import textwrap
import unittest

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, HERE)
import blocks  # noqa: E402

def markdown(text):
    return textwrap.dedent(text).lstrip("\n")


class Tree:
    """A source folder with the given files."""

    def __init__(self, files):
        self.dir = tempfile.TemporaryDirectory()
        self.root = self.dir.name
        for path, text in files.items():
            full = os.path.join(self.root, path)
            os.makedirs(os.path.dirname(full), exist_ok=True)
            with open(full, "w", encoding="utf-8") as file:
                file.write(markdown(text))

    def blocks(self, *paths):
        return blocks.read_blocks(self.root, list(paths))

    def run(self, *args):
        return subprocess.run([sys.executable, os.path.join(HERE, "blocks.py"), *args, "--source-dir", self.root],
                              capture_output=True, text=True)


class Case(unittest.TestCase):
    def tree(self, files):
        tree = Tree(files)
        self.addCleanup(tree.dir.cleanup)
        return tree


class Reading(Case):
    def test_kinds_and_names(self):
        tree = self.tree({"README.md": """
            ```cpp
            int main() { return 0; }
            ```
            # A first call
            <!-- snippet: reply -->
            ```cpp
            use(replyBytes);
            ```
            Text between.
            ```cpp
            int main(int argc, char** argv) { return argc - 1; }
            ```
            ## The `Catalogue`, once!
            <!-- excerpt: src/catalogue.hpp -->
            ```cpp
            #define X 1
            ```
            ```sh
            make test
            ```
            ```cmake
            find_package(QBComponentAPI CONFIG REQUIRED)
            ```
            ```cpp
            auto x = 1;
            ```
            """, "docs/getting-started.md": """
            # Host
            ```cmake
            project(app)
            ```
            ```cpp
            int main() { return 0; }
            ```
            """})
        found = [(b.kind, b.name, b.line, b.target) for b in tree.blocks("README.md", "docs/getting-started.md")]
        self.assertEqual(found, [
            ("program", "doc_README_top", 1, ""),
            ("fragment", "doc_README_a_first_call", 6, "reply"),
            ("program", "doc_README_a_first_call_2", 10, ""),
            ("excerpt", "doc_README_the_catalogue_once", 15, "src/catalogue.hpp"),
            ("cmake", "doc_README_the_catalogue_once_2", 21, "tests/consumers/CMakeLists.txt"),
            ("unknown", "doc_README_the_catalogue_once_3", 24, ""),
            # A guide's CMake is not the consumer app's.
            ("program", "doc_docs_getting_started_host", 5, ""),
        ])

    def test_fences(self):
        tree = self.tree({"README.md": """
            ~~~markdown
            ```cpp
            not a block of its own
            ```
            ~~~
            ````cpp
            int main() {
            ```
            }
            ````
            """})
        found = tree.blocks("README.md")
        self.assertEqual([(b.line, b.lines) for b in found], [(6, ["int main() {", "```", "}"])])
        unclosed = self.tree({"guide.md": "text\n```cpp\nint main() {}\n"})
        with self.assertRaisesRegex(blocks.BlockError, r"^guide.md:2: the block is not closed"):
            unclosed.blocks("guide.md")


class Checking(Case):
    CATALOGUE = """
        // endpoints
        #define LIST(X)                 \\
          X(kOne, "v3/one")             \\
          X(kTwo, "v3/two")             \\
          X(kThree, "v3/three")
        LIST(DECLARE)
        """

    def check(self, excerpt):
        tree = self.tree({"src/catalogue.hpp": self.CATALOGUE,
                     "README.md": "# Adding one\n<!-- excerpt: src/catalogue.hpp -->\n```cpp\n" + excerpt + "```\n"})
        return tree.run("check", "--block", "doc_README_adding_one", "README.md")

    def test_excerpts(self):
        cases = [
            # lines in order, some left out, blank lines and the width of blanks ignored
            ('#define LIST(X) \\\n  X(kOne, "v3/one") \\\n\n  X(kThree,   "v3/three")\n', None),
            ("LIST(DECLARE)\n", None),
            # out of order: names the README line and the file line it searched after
            ('  X(kTwo, "v3/two") \\\n  X(kOne, "v3/one") \\\n',
             r'README.md:5: not in src/catalogue.hpp after its line 4: X\(kOne, "v3/one"\)'),
            # drifted
            ('  X(kTwo, "v3/2") \\\n', r'README.md:4: not in src/catalogue.hpp: X\(kTwo, "v3/2"\) \\'),
            # a line may match only once
            ("LIST(DECLARE)\nLIST(DECLARE)\n", r"README.md:5: not in src/catalogue.hpp after its line 6"),
        ]
        for excerpt, error in cases:
            with self.subTest(excerpt=excerpt):
                result = self.check(excerpt)
                if error is None:
                    self.assertEqual((result.returncode, result.stderr), (0, ""))
                else:
                    self.assertEqual(result.returncode, 1)
                    self.assertRegex(result.stderr, error)

    def test_missing_excerpted_file(self):
        tree = self.tree({"README.md": "<!-- excerpt: gone.hpp -->\n```cpp\nx\n```\n"})
        result = tree.run("check", "--block", "doc_README_top", "README.md")
        self.assertRegex(result.stderr, r"README.md:2: the excerpted file gone.hpp does not exist")

    def test_cmake_lines(self):
        consumer = """
            if(WITH_HOST)
              set(QB_BUILD_HOST ON)  # also the host
              add_subdirectory(${QB_SOURCE_DIR} qb)
            endif()
            target_link_libraries(consumer PRIVATE QBComponentAPI::QBComponentAPI)
            """
        readme = """
            # Using it
            ```cmake
            # 1. A copy
            set(QB_BUILD_HOST ON)   # comments differ
            add_subdirectory(third_party/QBComponentAPI)
            target_link_libraries(app PRIVATE QBComponentAPI::QBComponentAPI)
            find_package(QBComponentAPI CONFIG REQUIRED COMPONENTS host)
            target_link_libraries(app PRIVATE QBComponentAPI::host)
            ```
            """
        tree = self.tree({"tests/consumers/CMakeLists.txt": consumer, "README.md": readme})
        result = tree.run("check", "--block", "doc_README_using_it", "README.md")
        self.assertEqual(result.returncode, 1)
        self.assertEqual(result.stderr.splitlines(), [
            "README.md:7: the consumer app (tests/consumers/CMakeLists.txt) has no line "
            "'find_package(QBComponentAPI CONFIG REQUIRED COMPONENTS host)'; keep the two the same",
            "README.md:8: the consumer app (tests/consumers/CMakeLists.txt) has no line "
            "'target_link_libraries(consumer PRIVATE QBComponentAPI::host)'; keep the two the same",
        ])

    def test_a_compiled_block_is_not_checked(self):
        tree = self.tree({"README.md": "```cpp\nint main() { return 0; }\n```\n"})
        result = tree.run("check", "--block", "doc_README_top", "README.md")
        self.assertRegex(result.stderr, "README.md:1: doc_README_top is a program, which is run, not checked")


class Generating(Case):
    PRELUDE = """
        #pragma once
        #include <stdexcept>
        #include <string>
        namespace {
        struct Prelude {
          std::string replyBytes = "reply";
          static inline int seen = 0;
          static void show(const std::string& text) { seen += static_cast<int>(text.size()); }
          void finish() const {
            if (seen != 5) throw std::runtime_error("show was not called with the reply");
          }
        };
        }  // namespace
        """

    PLAIN = """
        #pragma once
        #include <stdexcept>
        namespace {
        struct Prelude {
          int count = 3;
        };
        }  // namespace
        """

    def generate(self, readme):
        tree = self.tree({"README.md": readme, "tests/docs/preludes/reply.hpp": self.PRELUDE,
                          "tests/docs/preludes/plain.hpp": self.PLAIN})
        out = os.path.join(tree.root, "out")
        return tree, out, tree.run("generate", "--out", out, "README.md")

    def test_refused_blocks_name_their_lines(self):
        tree, _, result = self.generate("""
            # One
            ```cpp
            auto x = 1;
            ```
            <!-- snippet: nothing -->
            ```cpp
            x();
            ```
            <!-- snippet: ../reply -->
            ```cpp
            x();
            ```
            """)
        self.assertEqual(result.returncode, 1)
        self.assertEqual(len(result.stderr.splitlines()), 3)
        self.assertRegex(result.stderr, r"README.md:2: a ```cpp block needs `int main\(`")
        self.assertRegex(result.stderr, r"README.md:6: no prelude tests/docs/preludes/nothing.hpp")
        self.assertRegex(result.stderr, r"README.md:10: no prelude tests/docs/preludes/../reply.hpp")

    def test_rewrites_only_what_changed(self):
        readme = "# A\n```cpp\nint main() { return 0; }\n```\n# B\n```cpp\nint main() { return 1; }\n```\n"
        tree, out, result = self.generate(readme)
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertEqual(sorted(os.listdir(out)), ["blocks.cpp", "doc_README_a.cpp", "doc_README_b.cpp"])

        def edit(text):
            for name in os.listdir(out):
                os.utime(os.path.join(out, name), (0, 0))
            with open(os.path.join(tree.root, "README.md"), "w", encoding="utf-8") as file:
                file.write(text)
            self.assertEqual(tree.run("generate", "--out", out, "README.md").returncode, 0)
            return {name: os.path.getmtime(os.path.join(out, name)) != 0 for name in os.listdir(out)}

        # Prose after the blocks: nothing to compile again.
        self.assertEqual(edit(readme + "Prose.\n"), {"blocks.cpp": False, "doc_README_a.cpp": False,
                                                      "doc_README_b.cpp": False})
        # A removed: its file goes, B's lines moved and the table changed.
        self.assertEqual(edit(readme[readme.index("# B"):]), {"blocks.cpp": True, "doc_README_b.cpp": True})

    def test_compiled_blocks_run_and_point_at_the_markdown(self):
        if len(sys.argv) < 2:
            self.skipTest("needs the C++ compiler as the argument")
        readme = markdown("""
            # A program
            ```cpp
            // leading comments stay out of the way
            #include <cstdlib>
            #define TWICE(x) \\
              ((x) * 2)

            static int twice(int x) { return TWICE(x); }
            int main(int argc, char** argv) { return argc == 2 ? twice(std::atoi(argv[1])) : 9; }
            ```
            # A fragment
            <!-- snippet: reply -->
            ```cpp
            #include <algorithm>
            #include <vector>

            std::string copy = replyBytes;
            std::ranges::for_each(std::vector<std::string>{copy}, [](const auto& text) { show(text); });
            ```
            # A fragment that shows nothing
            <!-- snippet: reply -->
            ```cpp
            std::string copy = replyBytes;
            ```
            # A fragment whose prelude checks nothing
            <!-- snippet: plain -->
            ```cpp
            if (count != 3) throw std::runtime_error("three expected");
            ```
            # Another program
            ```cpp
            #include <stdexcept>
            int main() { throw std::runtime_error("thrown"); }
            ```
            """)
        tree, out, result = self.generate(readme)
        self.assertEqual(result.returncode, 0, result.stderr)
        # Each block defines main, twice, copy or Block: they stay apart in one program.
        generated = [os.path.join(out, name) for name in sorted(os.listdir(out))]
        program = os.path.join(tree.root, "blocks")
        flags = ["-std=c++20", "-Wall", "-Wextra", "-Wpedantic", "-Werror", "-Wno-unused-variable",
                 "-Werror=return-type", "-I", os.path.join(tree.root, "tests/docs"), "-I", HERE]
        compiled = subprocess.run([sys.argv[1], *flags, *generated, os.path.join(HERE, "runner.cpp"), "-o", program],
                                  capture_output=True, text=True, cwd=tree.root)
        self.assertEqual(compiled.returncode, 0, compiled.stderr)
        cases = [
            (["doc_README_a_program", "21"], 42, ""),
            (["doc_README_a_program"], 9, ""),
            (["doc_README_a_fragment"], 0, ""),
            (["doc_README_a_fragment_that_shows_nothing"], 1, "README.md:22: the block threw: show was not called"),
            (["doc_README_a_fragment_whose_prelude_checks_nothing"], 0, ""),
            (["doc_README_another_program"], 1, "README.md:31: the block threw: thrown"),
            (["doc_README_none"], 2, "no block doc_README_none"),
        ]
        for args, status, error in cases:
            with self.subTest(args=args):
                ran = subprocess.run([program, *args], capture_output=True, text=True)
                self.assertEqual(ran.returncode, status, ran.stderr)
                self.assertIn(error, ran.stderr)
        listed = subprocess.run([program, "--list"], capture_output=True, text=True).stdout.splitlines()
        self.assertEqual(listed[0], "doc_README_a_program README.md:2")

        # A mistake is reported at its line of the markdown, in a program and in a fragment; a program's main
        # must return (main is a function in a namespace here, without main's implicit return 0).
        mistakes = [("std::atoi(argv", "std::atoy(argv", 9, "atoy"),
                    ("copy = replyBytes;\nstd::ranges", "copy = replyByte;\nstd::ranges", 17, "replyByte"),
                    ("{ return argc == 2 ? twice(std::atoi(argv[1])) : 9; }", "{ twice(argc + (argv != nullptr)); }", 9,
                     "return")]
        for old, new, line, said in mistakes:
            with self.subTest(mistake=new):
                with open(os.path.join(tree.root, "README.md"), "w", encoding="utf-8") as file:
                    file.write(readme.replace(old, new))
                self.assertEqual(tree.run("generate", "--out", out, "README.md").returncode, 0)
                failed = subprocess.run([sys.argv[1], *flags, "-fsyntax-only", *generated], capture_output=True,
                                        text=True, cwd=tree.root)
                self.assertNotEqual(failed.returncode, 0)
                self.assertRegex(failed.stderr, rf"README.md:{line}:\d+: error: .*{said}")

if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
