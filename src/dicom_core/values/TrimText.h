// Blanks, carets and line ends of DICOM text, trimmed in place and in one pass. The forms on a
// block keep its length: what becomes free at its end is NUL. Bytes are compared, so these are for
// text in sets whose blank, caret and line ends are those of ASCII.
#pragma once
#include <span>
#include <string>

// The blanks at the end. In a block, NULs behind the text count as its end.
void TrimTrailingSpaces(std::string* text);
void TrimTrailingSpaces(std::span<char> block);

// CR CR, CR LF and LF LF are one line end; each line end becomes a blank (so LF CR makes two).
void TrimNewlines(std::string* text);

// Any number of carets in a row become one blank.
void TrimCarets(std::string* text);
void TrimCarets(std::span<char> block);

// Any number of blanks in a row become one.
void TrimDoubleSpaces(std::string* text);
void TrimDoubleSpaces(std::span<char> block);

// The blanks at both ends.
void TrimFrontAndTrailingSpaces(std::string* text);
