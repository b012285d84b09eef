// The programs and fragments of the markdown files, compiled into one runner (tests/docs/runner.cpp).
// blocks.py writes each block's translation unit, which ends by including this, and the table.
#pragma once

#include <vector>

namespace qb::docs {

struct BlockEntry {
  const char* name;  // the ctest name, doc_<file>_<heading>
  int (*run)(int argc, char** argv);
  const char* file;  // the markdown file and the line of the block's opening fence
  int line;
};

// Every program and fragment, in the order of the files and of the blocks in each.
const std::vector<BlockEntry>& blocks();

// A fragment's block (its prelude's set-up in the constructor, the fragment in run()), then the prelude's
// finish() when it has one, which checks what the fragment was to do.
template <class Block>
int runFragment() {
  Block block;
  block.run();
  if constexpr (requires { block.finish(); }) block.finish();
  return 0;
}

// A program's main, renamed by its namespace, with either of the two signatures main may have.
inline int callMain(int (*main)(), int, char**) { return main(); }
inline int callMain(int (*main)(int, char**), int argc, char** argv) { return main(argc, argv); }

}  // namespace qb::docs
