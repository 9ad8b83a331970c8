// How functions of the library call each other on 32-bit x86, whose convention passes everything on the stack.
#pragma once

#ifdef __i386__

// Takes its first three arguments in registers.
#define KESTO_IN_REGISTERS __attribute__((regparm(3)))

// A function that exported ones jump to: it takes the constants of a message in a register, and all else where the caller
// of the exported function has put it on the stack.
#define KESTO_ENTRY __attribute__((regparm(1)))
#define KESTO_WITH(constants, ...) constants, __VA_ARGS__
#define KESTO_WITH_UNUSED(constants, first, second, unused, last) constants, first, second, unused, last

#else

// Elsewhere the first four arguments are in registers already. The constants come last, or take the place of an argument
// that is not used, so that the others stay where they are.
#define KESTO_IN_REGISTERS
#define KESTO_ENTRY
#define KESTO_WITH(constants, ...) __VA_ARGS__, constants
#define KESTO_WITH_UNUSED(constants, first, second, unused, last) first, second, constants, last

#endif
