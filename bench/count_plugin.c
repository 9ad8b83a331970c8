/* A plugin for the emulator. It counts the instructions that the program executes between one write to file -1 and the
 * next, and prints each count on a line of the emulator's log. It declares the parts it uses of the emulator's plugin
 * interface, version 1, as Debian does not ship the header. */
#include <inttypes.h>
#include <stdio.h>

#define EXPORTED __attribute__((visibility("default")))

struct block;
typedef uint64_t Id;

void qemu_plugin_register_vcpu_tb_trans_cb(Id id, void (*callback)(Id id, struct block* block));
void qemu_plugin_register_vcpu_syscall_cb(Id id, void (*callback)(Id id, unsigned cpu, int64_t number, uint64_t a1,
                                                                  uint64_t a2, uint64_t a3, uint64_t a4, uint64_t a5,
                                                                  uint64_t a6, uint64_t a7, uint64_t a8));
size_t qemu_plugin_tb_n_insns(const struct block* block);
void qemu_plugin_register_vcpu_tb_exec_inline(struct block* block, int operation, void* to, uint64_t value);
void qemu_plugin_outs(const char* text);

EXPORTED int qemu_plugin_version = 1;
EXPORTED int qemu_plugin_install(Id id, const void* info, int argc, char** argv);

enum { add = 0, system_write = 4 };

static uint64_t instructions;
static int counting;

static void translated(Id id, struct block* block)
{
    (void)id;
    qemu_plugin_register_vcpu_tb_exec_inline(block, add, &instructions, qemu_plugin_tb_n_insns(block));
}

static void called(Id id, unsigned cpu, int64_t number, uint64_t a1, uint64_t a2, uint64_t a3, uint64_t a4, uint64_t a5,
                   uint64_t a6, uint64_t a7, uint64_t a8)
{
    char line[32];

    (void)id, (void)cpu, (void)a2, (void)a3, (void)a4, (void)a5, (void)a6, (void)a7, (void)a8;
    if (number != system_write || (uint32_t)a1 != UINT32_MAX)
        return;
    if (counting) {
        snprintf(line, sizeof line, "%" PRIu64 "\n", instructions);
        qemu_plugin_outs(line);
    }
    counting = !counting;
    instructions = 0;
}

int qemu_plugin_install(Id id, const void* info, int argc, char** argv)
{
    (void)info, (void)argc, (void)argv;
    qemu_plugin_register_vcpu_tb_trans_cb(id, translated);
    qemu_plugin_register_vcpu_syscall_cb(id, called);
    return 0;
}
