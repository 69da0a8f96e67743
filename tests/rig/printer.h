// A printer of this machine that writes what is printed into a file.
#pragma once

#include <string>
#include <vector>

namespace varnel::rig {

// The default printer for the length of a scope: one for PostScript, whose pages go to a file in a
// folder that is there.
class FilePrinter {
 public:
  explicit FilePrinter(const std::wstring& folder);
  FilePrinter(const FilePrinter&) = delete;
  FilePrinter& operator=(const FilePrinter&) = delete;
  ~FilePrinter();

  // The system took it.
  bool ready() const { return ready_; }
  const std::wstring& name() const { return name_; }
  // What was printed last; there once all of it was.
  const std::wstring& output() const { return output_; }

 private:
  std::wstring name_;
  std::wstring output_;
  bool ready_ = false;
};

// The words of each line of a printed page.
using PrintedLines = std::vector<std::vector<std::wstring>>;
// The lines of a text, each as its words; lines without words are left out.
PrintedLines LinesOf(const std::wstring& text);

// What an interpreter of PostScript reads on the pages of a file, one after the other; none when
// there is no interpreter, or it does not understand the file.
std::vector<PrintedLines> PrintedPages(const std::wstring& postscript);
// A picture of one page (from 1), `dpi` dots to the inch, as a BMP file beside the other; its path,
// empty as above.
std::wstring PictureOfPage(const std::wstring& postscript, int page, int dpi);

}  // namespace varnel::rig
