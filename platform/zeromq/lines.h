// The files that say where channels are and who may send: words between blanks, one thing a line.
#ifndef KESTO_PLATFORM_ZEROMQ_LINES_H
#define KESTO_PLATFORM_ZEROMQ_LINES_H

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

// One more than any line has; null after the last one.
using Words = const char* [6];

// Hands the words of each line that has some to `take`, which returns null or what is wrong with them. That is said on
// stderr, with the `consequence`, and the result is false then. A comment is a line that starts with #, or with
// `inside` what follows a # anywhere.
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
