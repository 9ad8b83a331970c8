/* Control of the stand-in for the optional OS-abstraction services (libosalstandin.so), to be preloaded or linked.
 *
 * It offers the four RVL_Osal* names of platform/osal.h:
 * - a log writer to standard error, one line a record:
 *     KESTO/KESTO_MARLOCK_SERIAL level 2 code 22 ifit_mcp_mesh_unpack: [KESTO]:Table offset(3) is out of range(4 - 22)
 * - a memory service that counts what it gives, can refuse by a plan, and aborts with a message when something is released
 *   that is not a live block of its own (released twice, or taken elsewhere). Blocks are 16-byte aligned, exactly as long
 *   as asked for, and carry nothing before them, so that memory checkers see every access outside.
 *
 * Environment, read when the library is loaded; a value that is not understood is reported and ignored:
 *   OSAL_STANDIN_MEMORY=0|1    RVL_OsalMemUseFlagGet answers 1 for the codecs' module (default 1)
 *   OSAL_STANDIN_LOG=0|1       log records are written (default 1); they are counted in any case
 *   OSAL_STANDIN_BUDGET=bytes  live bytes never exceed this (default: no limit)
 *   OSAL_STANDIN_FAIL_AT=n     the n-th allocation fails, counted from 1 (default 0: none)
 *   OSAL_STANDIN_FAIL_FROM=n   the n-th and all later allocations fail (default 0: none)
 *   OSAL_STANDIN_REPORT=0|1    a summary on standard error when the process ends (default 0)
 *
 * Any thread may call anything at any time. */
#ifndef KESTO_PLATFORM_STANDIN_OSAL_STANDIN_H
#define KESTO_PLATFORM_STANDIN_OSAL_STANDIN_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#define OSAL_STANDIN_NO_LIMIT UINT64_MAX

typedef struct OsalStandinPlan {
    uint64_t budget; /* live bytes at most; OSAL_STANDIN_NO_LIMIT for any */
    uint64_t fail_at;
    uint64_t fail_from;
    uint32_t use_memory;
    uint32_t write_log;
    uint32_t report;
} OsalStandinPlan;

typedef struct OsalStandinCounters {
    uint64_t live_blocks, live_bytes;
    uint64_t peak_blocks, peak_bytes;
    uint64_t total_blocks, total_bytes; /* given since the plan was set */
    uint64_t failures;                  /* requests answered with null */
    uint64_t null_releases;
    uint64_t log_records;
} OsalStandinCounters;

void osal_standin_counters(OsalStandinCounters* counters);

/* The plan in force, to be changed and set again. */
void osal_standin_plan(OsalStandinPlan* plan);

/* Puts a plan in force and starts counting from zero: allocations for fail_at and fail_from, and every counter except the
 * live ones, from which the peaks start. */
void osal_standin_set_plan(const OsalStandinPlan* plan);

/* Sets the plan that the environment asks for now. */
void osal_standin_read_environment(void);

/* Writes the summary to standard error. */
void osal_standin_report(void);

#ifdef __cplusplus
}
#endif

#endif
