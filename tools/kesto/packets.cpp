#include "tools/kesto/packets.h"

#include <fmt/chrono.h>
#include <fmt/format.h>

#include <algorithm>
#include <cstdio>
#include <nlohmann/json.hpp>

#include "tools/kesto/capture.h"
#include "tools/kesto/names.h"
#include "tools/kesto/quoting.h"
#include "tools/kesto/raw.h"

namespace kesto::command {

namespace {

using nlohmann::ordered_json;
using tools::CapturedPacket;
using tools::PacketFault;

struct Reading {
    CapturedPacket packet;
    const Message* message = nullptr;   // found by id, null if there is none
};

// ---- classifying packets ----

// Prints plain numbers if the time is not within the years 0 to 9999.
std::string written_text(const CapturedPacket& packet)
{
    const std::time_t seconds = packet.seconds;
    std::tm time{};
    if (packet.microseconds > 999999 || gmtime_r(&seconds, &time) == nullptr || time.tm_year < -1900 ||
        time.tm_year > 9999 - 1900)
        return fmt::format("{} s and {} us since 1970", packet.seconds, packet.microseconds);
    return fmt::format("{:%Y-%m-%dT%H:%M:%S}.{:06}Z", time, packet.microseconds);
}

// With a call head, the time at which the call began, in nanoseconds.
std::string time_text(const CapturedPacket& packet)
{
    if (!packet.call)
        return written_text(packet);
    constexpr u64 second = 1000000000;
    const std::time_t seconds = static_cast<std::time_t>(packet.call->began / second);
    std::tm time{};
    gmtime_r(&seconds, &time);   // 64 bits of nanoseconds end in the year 2554
    return fmt::format("{:%Y-%m-%dT%H:%M:%S}.{:09}Z", time, packet.call->began % second);
}

// With a comma before it, as in ", sent on channel 1 to destination 9, result 0"; empty without a call head.
std::string call_text(const CapturedPacket& packet)
{
    if (!packet.call)
        return "";
    const tools::Call& call = *packet.call;
    std::string text = call.is_sent ? ", sent" : ", received";
    if (call.channel)
        text += fmt::format(" on channel {}", *call.channel);
    if (call.destination)
        text += fmt::format(" to destination {}", *call.destination);
    if (call.result)
        text += fmt::format(", result {}", *call.result);
    return text;
}

std::string head_text(const CapturedPacket& packet)
{
    return fmt::format("packet {}, {}{}", packet.number, time_text(packet), call_text(packet));
}

bool is_message(const Reading& reading)
{
    return reading.packet.fault == PacketFault::none && reading.message != nullptr;
}

const char* fault_name(const Reading& reading)
{
    return reading.packet.fault == PacketFault::none ? "unknown_id" : name_of(reading.packet.fault);
}

std::string fault_text(const Reading& reading)
{
    return reading.packet.fault == PacketFault::none ? "no message has this id" : text_of(reading.packet.fault);
}

std::string id_text(const CapturedPacket& packet) { return fmt::format("{:#010x}", packet.id); }

ordered_json head_json(const Reading& reading)
{
    const CapturedPacket& packet = reading.packet;
    ordered_json json = {{"packet", packet.number}, {"time", time_text(packet)}};
    if (packet.call) {
        json["direction"] = packet.call->is_sent ? "sent" : "received";
        if (packet.call->channel)
            json["channel"] = *packet.call->channel;
        if (packet.call->destination)
            json["destination"] = *packet.call->destination;
        if (packet.call->result)
            json["result"] = *packet.call->result;
    }
    json["id"] = id_text(packet);
    json["message"] = reading.message == nullptr ? ordered_json() : ordered_json(reading.message->name);
    return json;
}

ordered_json fault_json(const Reading& reading)
{
    ordered_json json = head_json(reading);
    json["fault"] = fault_name(reading);
    json["reason"] = fault_text(reading);
    json["bytes"] = to_hex(reading.packet.bytes.data(), reading.packet.bytes.size());
    return json;
}

std::string fault_line(const Reading& reading, const Colours& colours)
{
    const std::string name = reading.message == nullptr ? "" : " " + reading.message->name;
    return fmt::format("{}: {}: {}, {}; id {}{}, {}\n", head_text(reading.packet), colours.bad("no message"),
                       fault_name(reading), fault_text(reading), id_text(reading.packet), name,
                       counted(reading.packet.bytes.size(), "byte"));
}

void print_line(const ordered_json& json) { print(json_text(json, -1) + "\n"); }

// ---- iterating over packets ----

void show_progress(u64 read, u64 all)
{
    const std::string of_all = all == 0 ? "" : fmt::format(" of {}", all >> 20);
    fmt::print(stderr, "\r{}{} MiB", read >> 20, of_all);
}

struct ProgressLine {
    bool on = shows_progress();

    ~ProgressLine()
    {
        if (on)
            fmt::print(stderr, "\r\033[K");
    }
};

bool is_wanted(const PacketChoices& which, const CapturedPacket& packet)
{
    return (which.number == 0 || packet.number == which.number) &&
           (which.message == nullptr || packet.id == which.message->id);
}

// Adds the packet number to any fault thrown while showing a packet.
template <class Show>
int show_named(const PacketChoices& which, Show show, const Reading& reading)
{
    try {
        return show(reading);
    } catch (const std::exception& error) {
        throw Fault(fmt::format("{}: packet {}: {}", which.file, reading.packet.number, error.what()));
    }
}

// show(reading) returns its exit status; the highest one is the overall result.
template <class Show>
int for_each_packet(const PacketChoices& which, Show show)
{
    const ProgressLine progress;
    tools::CaptureReader reader;
    if (progress.on)
        reader.progress = show_progress;
    std::string error;
    if (!reader.open(which.file, error))
        throw Fault(error);
    int worst = accepted;
    u64 shown = 0;
    CapturedPacket packet;
    while (reader.next(packet, error)) {
        if (is_wanted(which, packet)) {
            worst = std::max(worst, show_named(which, show, Reading{packet, catalogue().find(packet.id)}));
            ++shown;
        }
        if (packet.number == which.number)
            break;
    }
    if (!error.empty())
        throw Fault(error);
    if (shown != 0 || (which.number == 0 && which.message == nullptr))
        return worst;
    complain(fmt::format("{}: no such packet among {}", which.file, packet.number));
    return refused;
}

int decode_packet(const Reading& reading, const DecodeChoices& choices)
{
    ordered_json json = head_json(reading);
    int result = accepted;
    const Explanation verdict = explain_verdict(*reading.message, reading.packet.bytes, choices.most_memory);
    if (verdict.given_up) {
        json["error"] = given_up_text(choices.most_memory);   // later packets are still read
        result = unusable;
    } else if (verdict.refused) {
        json["refused"] = refused_json(verdict, *verdict.refused);
        result = refused;
    } else {
        json["record"] = named_json(record_of(verdict));
    }
    print_line(json);
    return result;
}

int explain_packet(const Reading& reading, const ExplainChoices& choices, const Colours& colours)
{
    const Explanation explanation = explain_fully(*reading.message, reading.packet.bytes, choices.options);
    if (!choices.html.empty())
        write_page(explanation, choices.html);
    if (choices.json) {
        ordered_json json = head_json(reading);
        json.update(explanation_json(explanation));
        print_line(json);
    } else if (choices.html.empty()) {
        print(fmt::format("{}{}\n", folded_for_terminal(head_text(reading.packet) + "\n", 4),
                          explanation_text(explanation, {colours, choices.whole, terminal_width()})));
    }
    return explanation.refused ? refused : accepted;
}

}   // namespace

void for_every_packet(const std::string& file, u64 number, const std::function<void(const PacketView&)>& see)
{
    PacketChoices which;
    which.file = file;
    which.number = number;
    (void)for_each_packet(which, [&](const Reading& reading) {
        const CapturedPacket& packet = reading.packet;
        see({packet.number, time_text(packet), packet.id, reading.message,
             is_message(reading) ? nullptr : fault_name(reading), packet.bytes,
             packet.call ? std::optional(packet.call->is_sent) : std::nullopt,
             packet.call ? packet.call->result : std::nullopt});
        return int{accepted};
    });
}

int explain_packets(const PacketChoices& which, const ExplainChoices& choices)
{
    const Colours colours = colours_for(choices.colour);
    return for_each_packet(which, [&](const Reading& reading) {
        if (is_message(reading))
            return explain_packet(reading, choices, colours);
        if (choices.json)
            print_line(fault_json(reading));
        else
            print(folded_for_terminal(fault_line(reading, colours), 4) + "\n");
        return int{refused};
    });
}

int explain_raw_packets(const PacketChoices& which, bool as_json)
{
    return for_each_packet(which, [&](const Reading& reading) {
        const RawView view = look_at(reading.packet.bytes);
        if (as_json) {
            ordered_json json = head_json(reading);
            json.update(raw_json(view));
            print_line(json);
        } else {
            print(fmt::format("{}{}\n", folded_for_terminal(head_text(reading.packet) + "\n", 4),
                              raw_text(view, terminal_width())));
        }
        return view.has_root_table ? int{accepted} : int{refused};
    });
}

int decode_packets(const PacketChoices& which, const DecodeChoices& choices)
{
    return for_each_packet(which, [&](const Reading& reading) {
        if (is_message(reading))
            return decode_packet(reading, choices);
        print_line(fault_json(reading));
        return int{refused};
    });
}

}   // namespace kesto::command
