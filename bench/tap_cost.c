/* Prints what a message costs that is sent and delivered within this process, in nanoseconds: the best of 20 rounds.
 * docs/tap.md says how to run it without and with the tap. */
#include <stdio.h>
#include <time.h>

#include "ifit_dfx.h"

enum { rounds = 20, messages = 5000 };

static double now(void)
{
    struct timespec time;
    clock_gettime(CLOCK_MONOTONIC, &time);
    return 1e9 * (double)time.tv_sec + (double)time.tv_nsec;
}

int main(void)
{
    ifit_dfx_query_glbdata_item_mesh item = {0};
    char text[] = "hello";
    double best = 1e18;
    int failed = ifit_dfx_recv_init();
    item.f0 = text;
    for (int round = 0; round < rounds; ++round) {
        const double start = now();
        for (int i = 0; i < messages; ++i)
            failed |= ifit_dfx_query_glbdata_item_mesh__sendmsg(1, &item, 1);
        const double each = (now() - start) / messages;
        best = each < best ? each : best;
    }
    printf("%.0f ns\n", best);
    return failed;
}
