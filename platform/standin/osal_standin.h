/* Control of the stand-in for the optional OS-abstraction services (libosalstandin.so), to be preloaded or linked.
 *
 * It provides the four RVL_Osal* functions of platform/osal.h:
 * - a log that is written to standard error, one line per record:
 *     KESTO/KESTO_MARLOCK_SERIAL level 2 code 22 ifit_mcp_mesh_unpack: [KESTO]:Table offset(3) is out of range(4 - 22)
 * - a memory service that counts its blocks and can fail according to a plan. It aborts with a message if a pointer is
 *   released that is not a live block of its own (released twice, or allocated elsewhere). Blocks are 16-byte aligned,
 *   have exactly the requested size and no header, so that memory checkers detect every access outside.
 *
 * Environment, read when the library is loaded; an invalid value is reported and ignored:
 *   OSAL_STANDIN_MEMORY=0|1    RVL_OsalMemUseFlagGet returns this for the codecs' module (default 1)
 *   OSAL_STANDIN_LOG=0|1       1: log records are written (default 1); they are counted in any case
 *   OSAL_STANDIN_BUDGET=bytes  limit of the live bytes (default: no limit)
 *   OSAL_STANDIN_FAIL_AT=n     the n-th allocation fails, counted from 1 (default 0: none)
 *   OSAL_STANDIN_FAIL_FROM=n   the n-th and all later allocations fail (default 0: none)
 *   OSAL_STANDIN_REPORT=0|1    1: prints a summary on standard error when the process ends (default 0)
 *
 * Every function may be called from any thread at any time. */
#ifndef KESTO_PLATFORM_STANDIN_OSAL_STANDIN_H
#define KESTO_PLATFORM_STANDIN_OSAL_STANDIN_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#define OSAL_STANDIN_NO_LIMIT UINT64_MAX

typedef struct OsalStandinPlan {
    uint64_t budget; /* limit of the live bytes, or OSAL_STANDIN_NO_LIMIT */
    uint64_t fail_at;
    uint64_t fail_from;
    uint32_t use_memory;
    uint32_t write_log;
    uint32_t report;
} OsalStandinPlan;

typedef struct OsalStandinCounters {
    uint64_t live_blocks, live_bytes;
    uint64_t peak_blocks, peak_bytes;
    uint64_t total_blocks, total_bytes; /* allocated since the plan was set */
    uint64_t failures;                  /* requests that returned null */
    uint64_t null_releases;
    uint64_t log_records;
} OsalStandinCounters;

void osal_standin_counters(OsalStandinCounters* counters);

/* Copies the plan in force to `*plan`. The caller may change it and set it again. */
void osal_standin_plan(OsalStandinPlan* plan);

/* Puts a plan in force and restarts counting at zero: the allocations for fail_at and fail_from, and every counter but
 * the live ones. The peaks restart at the live values. */
void osal_standin_set_plan(const OsalStandinPlan* plan);

/* Sets the plan that the environment variables now describe. */
void osal_standin_read_environment(void);

/* Writes the summary to standard error. */
void osal_standin_report(void);

#ifdef __cplusplus
}
#endif

#endif
