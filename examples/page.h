// The page that the demo writes: PNG files in a folder, and an index.html that shows them beside the calls that made
// them.
#pragma once

#include <filesystem>
#include <initializer_list>
#include <sstream>
#include <string>
#include <vector>

#include "call.h"
#include "image.h"

namespace demo {

/// Text as HTML.
std::string escaped(const std::string& text);

class Page {
 public:
  /// Makes the folder. Throws Failure if it cannot, as all members do.
  explicit Page(std::filesystem::path folder);

  /// The line under the page's title.
  void lead(const std::string& text);

  /// Starts a section, which all that follows belongs to. The contents under the title link to it.
  void section(const std::string& title, const std::string& text);

  /// Writes the picture to a file named after its title, and shows it with a sentence and the calls that made it.
  void show(const Image8u& picture, const std::string& title, const std::string& text,
            std::initializer_list<Call> calls);

  /// Shows a table. Its cells are HTML.
  void table(const std::vector<std::string>& header, const std::vector<std::vector<std::string>>& rows);

  /// Writes index.html and returns its path.
  std::filesystem::path write();

  int pictures() const { return pictures_; }

 private:
  std::filesystem::path folder_;
  std::string lead_;
  std::ostringstream contents_;
  std::ostringstream body_;
  int sections_ = 0;
  int pictures_ = 0;
  bool inSection_ = false;
};

}  // namespace demo
