// Runs a program as its user would, and gives back all that it said.
#pragma once

#include <sys/wait.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace examples {

struct outcome {
  int status;  // of the exit; -1 where it did not exit by itself
  std::string out;
  std::string err;
};

inline std::string contentsOf(std::filesystem::path const& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();
  return file ? text.str() : path.string().append(" cannot be read");
}

// A folder of the test's own, gone with the object.
class temporaryFolder {
 public:
  temporaryFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "zthalf-examples-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) throw std::filesystem::filesystem_error("mkdtemp", std::error_code());
    path_ = pattern;
  }
  ~temporaryFolder() { std::filesystem::remove_all(path_); }
  temporaryFolder(temporaryFolder const&) = delete;
  temporaryFolder& operator=(temporaryFolder const&) = delete;

  std::filesystem::path operator/(std::string const& name) const { return path_ / name; }

 private:
  std::filesystem::path path_;
};

inline std::string quotedForShell(std::string const& word) {
  std::string quoted = "'";
  for (const char c : word) {
    if (c == '\'')
      quoted.append("'\\''");
    else
      quoted.push_back(c);
  }
  quoted.push_back('\'');
  return quoted;
}

// A program of the examples, with the emulator that it needs in a cross build.
inline std::string commandOf(std::string const& program) {
  return std::string(EXAMPLES_EMULATOR " ").append(quotedForShell(std::string(EXAMPLES_FOLDER "/").append(program)));
}

struct surroundings {
  std::string environment;  // NAME=value words for the shell
  std::string input;        // what stands on standard input
};

inline outcome run(std::string const& program, std::vector<std::string> const& arguments = {},
                   surroundings const& around = {}) {
  const temporaryFolder folder;
  std::ofstream(folder / "in", std::ios::binary) << around.input;
  std::string command = "env -u COLUMNS ";
  command.append(around.environment).append(" ").append(commandOf(program));
  for (auto const& argument : arguments) command.append(" ").append(quotedForShell(argument));
  for (auto const& [stream, name] : {std::pair{" <", "in"}, std::pair{" >", "out"}, std::pair{" 2>", "err"}})
    command.append(stream).append(quotedForShell((folder / name).string()));
  const int status = std::system(command.c_str());
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, contentsOf(folder / "out"), contentsOf(folder / "err")};
}

}  // namespace examples
