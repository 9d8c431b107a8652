#pragma once

/// Marks a kernel of which the compiler makes two versions, one for processors with 256-bit
/// vectors and one for all others; the program picks at its start. Both give the same bits: the
/// project is compiled without fused multiply-add. Sanitized builds keep the plain version,
/// because they run code before the choice can be made.
#if defined(__x86_64__) && defined(__GNUC__) && !defined(__clang__) && \
    !defined(__SANITIZE_ADDRESS__) && defined(__OPTIMIZE__)
#define QB_VECTOR_CLONES __attribute__((target_clones("avx2", "default")))
#else
#define QB_VECTOR_CLONES
#endif
