// The application file: save (whole or a part), open, and insert into the open document.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace kq {

// The caption of the main window with a document open is this and the title.
inline constexpr const char* kCaptionPrefix = "Zelvox Voice Response Editor: ";

// Writes lines firstLine to lastLine with the header; saveAll false keeps only the
// variables and path variables those lines use (a Save Part) and renumbers the
// DisplayLines from 0000 when the range starts above line 0.
void SaveFile(std::string& title, std::string& fileName, bool saveAll, int firstLine, int lastLine,
              int16_t& lineCount);

// Loads the file as the document. On failure title becomes "Untitled" and the name empty.
void OpenFile(std::string& title, std::string& fileName);

// Merges the file's declarations and lines into the document before line `position`.
void InsertFile(std::string& title, std::string& fileName, int position);

// The same two commands on the bytes of a file already read (the fuzz targets and tests
// feed them directly).
void OpenFileBytes(std::string& title, std::string& fileName, const std::vector<uint8_t>& bytes);
void InsertFileBytes(std::string& title, const std::vector<uint8_t>& bytes, int position);

}  // namespace kq
