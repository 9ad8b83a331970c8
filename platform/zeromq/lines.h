// The common syntax of the map and the key file: one entry per line, words separated by blanks.
#ifndef KESTO_PLATFORM_ZEROMQ_LINES_H
#define KESTO_PLATFORM_ZEROMQ_LINES_H

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

// One element more than the longest entry has words; the elements after the last word are null.
using Words = const char* [6];

// Passes the words of each nonempty line to `take`, which returns null or a text that says what is wrong with them. The
// text is printed on stderr, followed by `consequence`, and the result is false then. A line that starts with # is a
// comment; with `inside`, so is the rest of a line after any #.
template <typename Take>
bool read_lines(FILE* file, const char* name, bool inside, const char* consequence, Take take)
{
    bool good = true;
    char* line = nullptr;
    size_t room = 0;
    for (int number = 1; getline(&line, &room, file) >= 0; ++number) {
        if (inside || line[0] == '#')
            line[strcspn(line, "#")] = '\0';
        Words words{};
        char* rest = line;
        for (const char*& word : words)
            word = strtok_r(nullptr, " \t\r\n", &rest);
        const char* const fault = words[0] == nullptr ? nullptr : take(words);
        if (fault == nullptr)
            continue;
        fprintf(stderr, "%s:%d: %s%s\n", name, number, fault, consequence);
        good = false;
    }
    free(line);
    return good;
}

#endif
