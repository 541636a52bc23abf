#pragma once
// The text files that carry captions in and out: the custom import and the export caption.txt. Both hold bytes of the
// code page; docs/formats/caption-files.md describes them. What a caption means: fields/caption_meanings.h.

#include <string_view>

namespace ecr {

/// Takes the tagged lines of a custom import file into the working image: receipt headers, receipt footers and
/// departments. What is wrong with a line is not told: an absent or unreadable field becomes empty or zero, and a line
/// of any other kind is passed over. A letter of two bytes that the register lacks ends the program at once. Nothing is
/// written to the image's file.
void import_captions(std::string_view bytes);

/// The same from a file, named in the form of the folder variables. Answers whether it could be read; if not, the log
/// says why.
bool Import_Caption(std::string_view path);

/// Appends 148 lines to Setup\caption.txt: department groups, receipt headers and footers, scroll messages,
/// abbreviations, invoice lines, short captions and other lines of the working image, each at its full width in
/// characters of the code page. The working image takes each text in that form, so that a second export converts it
/// once more. Answers whether the file was written; if not, the image stays as it was and the log says why.
bool Export_Caption();

}  // namespace ecr
