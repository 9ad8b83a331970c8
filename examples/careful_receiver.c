/* Takes whatever comes and uses what makes sense: careful_receiver SOCKET
 *
 * Meant for answers of the kind ifit_dfx_query_stat_rec_mesh whose sender always fills in the mark, f0.f3. */
#include <stdio.h>
#include <string.h>

#include "ifit_dfx.h"
#include "platform/standin/mesh_standin.h"

enum { CHANNEL = 1, PATIENCE_MS = 10000, MOST_ROWS = 1000 };

typedef struct Tally {
    uint32_t used, refused, senseless, undelivered;
} Tally;

/* Values are the sender's: whatever one is used for, it is tested for first. */
static int makes_sense(const ifit_dfx_query_stat_rec_mesh* answer)
{
    if (answer->f1.count != answer->f0.f4 || answer->f1.count > MOST_ROWS)
        return 0;
    if (answer->f1.count > 0 && answer->f1.items == NULL) /* after a decode that succeeded the two agree */
        return 0;
    for (uint32_t i = 0; i < answer->f1.count; ++i) {
        const ifit_dfx_query_stat_item_mesh* row = &answer->f1.items[i];
        if (memchr(row->f0, '\0', sizeof row->f0) == NULL) /* no end: not a text to be printed */
            return 0;
        if (row->f3.month < 1 || row->f3.month > 12) /* will be an index */
            return 0;
    }
    return 1;
}

static void on_message(void* context, uint32_t channel, uint32_t id, const void* record, uint32_t record_size,
                       const uint8_t* bytes, uint32_t length)
{
    static const char months[12][4] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                       "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    const ifit_dfx_query_stat_rec_mesh* answer = record;
    Tally* tally = context;
    (void)channel, (void)record_size, (void)bytes, (void)length;
    if (id != IFIT_DFX_QUERY_STAT_REC_MESH_ID || answer->f0.f3.data == NULL) { /* a pointer, not its length, tells */
        ++tally->refused;
        return;
    }
    if (!makes_sense(answer)) {
        ++tally->senseless;
        return;
    }
    if (tally->used++ == 0) /* the first one for all */
        for (uint32_t i = 0; i < answer->f1.count; ++i)
            printf("%s: %u, %u %s\n", (const char*)answer->f1.items[i].f0, (unsigned)answer->f1.items[i].f1,
                   (unsigned)answer->f1.items[i].f3.day, months[answer->f1.items[i].f3.month - 1]);
}

int main(int argc, char** argv)
{
    Tally tally = {0, 0, 0, 0};
    int result = argc == 2 ? ifit_dfx_recv_init() : -1;
    if (result == 0)
        result = mesh_standin_set_consumer(CHANNEL, on_message, &tally);
    if (result == 0)
        result = mesh_standin_listen(CHANNEL, argv[1]);
    while (result == 0) {
        result = mesh_standin_receive(CHANNEL, PATIENCE_MS);
        /* These are about one packet; the channel goes on. */
        if (result == MESH_STANDIN_SHORT_PACKET || result == MESH_STANDIN_LENGTH_DISAGREES ||
            result == MESH_STANDIN_TOO_LONG || result == MESH_STANDIN_UNKNOWN_ID || result == MESH_STANDIN_NO_MEMORY) {
            ++tally.undelivered;
            result = 0;
        }
    }
    printf("%u used, %u refused, %u without sense, %u undelivered; %s\n", (unsigned)tally.used, (unsigned)tally.refused,
           (unsigned)tally.senseless, (unsigned)tally.undelivered, mesh_standin_text(result));
    return result == MESH_STANDIN_PEER_CLOSED ? 0 : 1;
}
