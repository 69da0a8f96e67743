// Reads an RTF file as a note is opened and prints it as a note is saved.
#include <cstdio>
#include <string>

#include "widgets/notes/rtf/rtf_reader.h"
#include "widgets/notes/rtf/rtf_writer.h"

int main(int count, char** arguments) {
  std::FILE* const file = count == 2 ? std::fopen(arguments[1], "rb") : nullptr;
  if (file == nullptr) return 2;
  std::string rtf;
  for (int byte = std::fgetc(file); byte != EOF; byte = std::fgetc(file)) {
    rtf += static_cast<char>(byte);
  }
  std::fclose(file);
  const varnel::RtfReading reading = varnel::ReadRtf(rtf);
  if (reading.fault != varnel::RtfFault::kNone) return 1;
  const std::string written = varnel::WriteRtf(reading.document);
  return std::fwrite(written.data(), 1, written.size(), stdout) == written.size() ? 0 : 1;
}
