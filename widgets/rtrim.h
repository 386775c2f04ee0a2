#pragma once

/// A copy of `s` without its trailing white space, to be freed with delete[]. The first character always
/// stays: a text of blanks alone comes back as " ". A null `s` is an empty text.
char* rtrim(const char* s);
