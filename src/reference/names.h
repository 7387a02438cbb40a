// Names typed by the operator that become names of files or folders of the data tree (the
// short name of a payer, the file stem of a list).
#pragma once
#include <string>

namespace reference {

// Why `name` cannot be used as the name of a file or folder inside the data folder, in a
// sentence beginning with `subject` ("Skrót Płatnika"), or "" when it can. Refused: an empty
// name, "." and "..", slashes, blanks and other white space, quotes (the files cannot hold
// them), control characters and characters that code page 1250 lacks.
std::string badName(const std::string& name, const std::string& subject);

}  // namespace reference
