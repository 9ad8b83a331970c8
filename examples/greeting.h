/* Shared by sender and receiver: texts travel as ifit_dfx_query_glbdata_item_mesh; LAST_TEXT is the last one. */
#ifndef KESTO_EXAMPLES_GREETING_H
#define KESTO_EXAMPLES_GREETING_H

enum { GREETING_CHANNEL = 1, GREETING_PATIENCE_MS = 10000 };

#define LAST_TEXT "bye"

#endif
