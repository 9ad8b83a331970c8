// The same program in C++.
#include "consumer.c"
