"""All performance goals. `./run bench` measures and judges them (report.py)."""

SINGLE = ["ifit_color_intf_mesh", "ifit_flow_base_mesh", "ifit_flow_statistics_entry_to_mdtlm",
          "ifit_sync_ifit_session_entry"]
COLOUR, FLOW, STATISTICS, SESSION = SINGLE
UPDATE = "ifit_flow_base_mesh_update"
HASH = "ifit_dfx_query_queryhash_rec_mesh"
LIST = "ntvifit_stats_info_list:32"

# ---- times: (operation, records, maximum ratios to the limit, to the faster of protobuf and Cap'n Proto, to protobuf) ----

TIMES = []


def times(operations, messages, fills, limit, peers=None, protobuf=None):
    for operation in operations:
        for message in messages:
            for fill in fills:
                TIMES.append((operation, f"{message}/{fill}", limit, peers, protobuf))


BOTH = ["unpack", "unpack_sent"]
times(["send"], [STATISTICS, SESSION], ["full"], 3.0, 0.16)
times(["send"], [COLOUR, FLOW], ["full"], 4.0, 0.38)
times(["send"], [f"{UPDATE}:256"], ["full"], 8.5)
times(["send"], [f"{UPDATE}:256"], ["uniform"], 15)
times(["send"], [f"{UPDATE}:256"], ["sparse"], 22.5)
times(["send"], [f"{UPDATE}:16"], ["full"], 9)
times(["send"], [f"{UPDATE}:1"], ["full"], 6.5)
times(["send"], [HASH], ["full"], 4.4)
times(["send"], [LIST], ["full"], 4.7)
times(["send"], [LIST], ["sparse"], 9)
times(["pack"], SINGLE, ["full"], 4.0, 0.32)
times(["pack"], [f"{UPDATE}:16", f"{UPDATE}:256"], ["full"], 6.5, 0.9)
times(["pack"], [HASH], ["full"], 3.0, 0.28)
times(["pack"], [LIST], ["full"], 3.2, 0.28)
times(["pack"], SINGLE, ["sparse"], 7, 0.45)
times(["pack"], [f"{UPDATE}:16", f"{UPDATE}:256"], ["sparse"], 16, 2.2, 0.45)
times(["pack"], [f"{UPDATE}:256"], ["uniform"], 10, 1.6)
times(BOTH, [COLOUR], ["full"], 2.8, 0.28)
times(BOTH, [FLOW, STATISTICS, SESSION], ["full"], 2.8, 0.16)
times(["unpack"], [f"{UPDATE}:16", f"{UPDATE}:256"], ["full"], 2.8, 0.32)
times(["unpack"], [f"{UPDATE}:1", LIST], ["full"], 1.5, 0.30)
times(["unpack"], [HASH], ["full"], 2.0, 0.30)
times(["unpack"], [COLOUR], ["sparse"], 5, 0.5)
times(["unpack"], [FLOW, STATISTICS, SESSION], ["sparse"], 5, 0.30)
times(["unpack"], [f"{UPDATE}:256"], ["sparse", "uniform"], 10, 1.0)
EVEN = 1.05   # maximum ratio of sending a sparse record in fixed form to sending a full one, and vice versa

# ---- instructions per operation, or per row where the records have rows: (case, maximum on i686, on ARM) ----

ROOM = 1.03
INSTRUCTIONS = [
    (f"pack/{COLOUR}/full", 80, 80),
    (f"pack/{FLOW}/full", 125, 138),
    (f"pack/{STATISTICS}/full", 225, 268),
    (f"pack/{SESSION}/full", 310, 392),
    (f"send/{FLOW}/full", 98, 95),
    (f"send/{STATISTICS}/full", 183, 200),
    (f"send/{SESSION}/full", 222, 260),
    (f"unpack/{COLOUR}/full", 85, 85),
    (f"unpack/{FLOW}/full", 110, 115),
    (f"unpack/{STATISTICS}/full", 210, 240),
    (f"unpack/{SESSION}/full", 260, 320),
    (f"unpack/{FLOW}/sparse", 200, 200),
    (f"unpack/{SESSION}/sparse", 700, 650),
    (f"pack/{UPDATE}:256/full", 95, 105),
    (f"unpack/{UPDATE}:256/full", 85, 100),
    (f"send/{UPDATE}:256/full", 130, 140),
    (f"pack/{UPDATE}:256/sparse", 150, 140),
    (f"unpack/{UPDATE}:256/sparse", 165, 165),
    (f"pack/{HASH}/full", 700, 600),
    (f"unpack/{HASH}/full", 1000, 850),
    (f"pack/{LIST}/full", 420, 400),
    (f"unpack/{LIST}/full", 950, 950),
]

# ---- bytes of code (.text) of the library with all messages ----

CODE = {"x86_64": 310_000, "i686": 300_000, "arm": 215_000}
