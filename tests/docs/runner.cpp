// qb_doc_blocks: runs one program or fragment of the markdown files by its ctest name.
//   qb_doc_blocks --list          the names, with the file and line of each block
//   qb_doc_blocks NAME [ARGS...]  runs that block (a program gets ARGS); exits with its status
// run_with_mock.py starts the mock service the block talks to and sets QB_BASE_URL.
#include <cstring>
#include <exception>
#include <iostream>

#include "BlockTable.hpp"

int main(int argc, char** argv) {
  if (argc < 2) {
    std::cerr << "usage: qb_doc_blocks --list | NAME [ARGS...]\n";
    return 2;
  }
  for (const auto& block : qb::docs::blocks()) {
    if (std::strcmp(argv[1], "--list") == 0) {
      std::cout << block.name << " " << block.file << ":" << block.line << "\n";
    } else if (std::strcmp(argv[1], block.name) == 0) {
      try {
        return block.run(argc - 1, argv + 1);
      } catch (const std::exception& error) {
        std::cerr << block.file << ":" << block.line << ": the block threw: " << error.what() << "\n";
        return 1;
      }
    }
  }
  if (std::strcmp(argv[1], "--list") == 0) return 0;
  std::cerr << "qb_doc_blocks: no block " << argv[1] << "\n";
  return 2;
}
