#!/usr/bin/env bash
# Compiles the C and C++ code of the documents. A block is a whole source file, unless the line above it is a comment
# <!-- c: PARAMETERS -->; then it is the body of a function with these parameters.
#
#   documents.sh SOURCE_FOLDER
set -euo pipefail
cd "$1"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failed=0

awk -v folder="$work" '
    /^<!-- c: .* -->$/ { parameters = $0; gsub(/^<!-- c: | -->$/, "", parameters); next }
    /^```c(pp)?$/ {
        name = FILENAME; gsub(/\//, "_", name)
        language = substr($0, 4)
        file = folder "/" name "." FNR "." language
        if (parameters != "") {
            printf "#include <stdlib.h>\n#include <string.h>\n" > file
            count = split("ifit ifit_dfx ifit_sync ntvifit kesto_verify platform/mesh platform/osal", headers, " ")
            for (i = 1; i <= count; ++i)
                printf "#include \"%s.%s\"\n", headers[i], language == "cpp" && i <= 4 ? "hpp" : "h" > file
            printf "int body(%s);\nint body(%s)\n{\n", parameters, parameters > file
        }
        printf "#line %d \"%s\"\n", FNR + 1, FILENAME > file
        next
    }
    /^```$/ && file != "" { if (parameters != "") print "return 0;\n}" > file; close(file); file = "" }
    file != "" { print > file }
    { if (file == "") parameters = "" }
' README.md CONTRIBUTING.md docs/*.md

count=0
for source in "$work"/*.c "$work"/*.cpp; do
    compile=(cc -std=c11)
    if [[ $source = *.cpp ]]; then compile=(c++ -std=c++20); fi
    "${compile[@]}" -Wall -Wextra -Wconversion -Werror -Iinclude -I. -fsyntax-only "$source" || failed=1
    count=$((count + 1))
done
echo "$count C and C++ code blocks compiled"
exit $failed
