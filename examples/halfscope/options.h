// The command line.
#pragma once

#include <stdexcept>
#include <string>
#include <vector>

namespace halfscope {

struct options {
  std::vector<std::string> files;    // none: the tables that come with the program
  std::vector<std::string> columns;  // none: every numeric column
  bool all = false;                  // every step, not only the summary
  bool json = false;
  bool speed = true;
  bool help = false;
  bool version = false;
};

class usageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Throws usageError.
options parseOptions(int count, char** arguments);

std::string helpText();  // help.txt
std::string versionText();

}  // namespace halfscope
