// Stands in for an image tool that was taken over while it reads an image:
//
//   hostiletool IMAGE NAME=VALUE... [ARGUMENT...]
//
// tries everything (hostileattempts.h) when IMAGE is among the arguments, and otherwise waits.

#include "hostileattempts.h"

#include <algorithm>

#include <unistd.h>

int main(int argc, char **argv)
{
    const std::vector<std::string> words(argv + 1, argv + argc);
    // A copy that an attempt has started.
    if (words.empty())
        return 0;
    if (std::count(words.begin(), words.end(), words.front()) < 2)
        pause();
    tryEverything(knowledgeFrom(words));
    return 1;
}
