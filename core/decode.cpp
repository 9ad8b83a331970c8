#include "core/decode.h"

#include "platform/bounded_memory.h"

namespace kesto {

namespace {

// The table that is being decoded.
struct Frame {
    Input in;
    TableView<Input> view;
    const Decoder* decoder;
    const char* routine;
};

// Reports a table that was refused.
[[gnu::cold]] void refuse_table(const Frame& frame, TableFault fault)
{
    log_table_fault(*frame.decoder->unit, frame.routine, fault, frame.in, frame.view);
}

void release_block(const Unit& unit, const char* routine, u8* pointer)
{
    unit.release(field_pointer(pointer), OSAL_MEMORY_MODULE, routine);
    set_field<u8*>(pointer, nullptr);
}

void release_elements(const Decoder& element, u8* records, u32 count)
{
    if (element.owned_block_count != 0)
        for (u32 i = 0; i < count; ++i)
            release_record(element, records + std::size_t{i} * element.record_size);
}

bool decode_scalar(const Frame& frame, u32 offset, u32 width, u8* field)
{
    switch (width) {
    case 1: return read_scalar<u8>(frame.in, frame.view, offset, field);
    case 2: return read_scalar<u16>(frame.in, frame.view, offset, field);
    case 4: return read_scalar<u32>(frame.in, frame.view, offset, field);
    default: return read_scalar<u64>(frame.in, frame.view, offset, field);
    }
}

bool decode_array(const Frame& frame, u32 offset, const SlotInfo& slot, u8* field)
{
    return slot.width == 1 ? read_array<u8>(frame.in, frame.view, offset, slot.count, field)
                           : read_array<u32>(frame.in, frame.view, offset, slot.count, field);
}

bool decode_table(const Frame& frame, u32 offset, const SlotInfo& slot, u8* field)
{
    u32 table = 0;
    if (!nested_table(frame.in, frame.view, offset, table))
        return false;
    return decode_any_nested(frame.in, table, field, frame.decoder->nested[slot.nested]) || !slot.fault_ends_read;
}

bool decode_slot(const Frame& frame, u32 offset, const SlotInfo& slot, u8* field)
{
    switch (slot.kind) {
    case Kind::scalar: return decode_scalar(frame, offset, slot.width, field);
    case Kind::text: return decode_bytes<copy_text>(frame.in, frame.view, offset, field, *frame.decoder, frame.routine);
    case Kind::block:
        return decode_bytes<copy_block>(frame.in, frame.view, offset, field, *frame.decoder, frame.routine);
    case Kind::array: return decode_array(frame, offset, slot, field);
    case Kind::table: return decode_table(frame, offset, slot, field);
    case Kind::vector: break;
    }
    return decode_vector(frame.in, frame.view, offset, field, *frame.decoder, frame.routine,
                         frame.decoder->nested[slot.nested]);
}

bool decode_slots(const Frame& frame, u8* record)
{
    for (u32 k = 0; k < frame.decoder->slot_count; ++k) {
        const SlotInfo& slot = frame.decoder->slots[k];
        const u32 offset = slot_offset(frame.in, frame.view, k);
        if (offset != 0 && !decode_slot(frame, offset, slot, record + slot.record_offset))
            return false;
    }
    return true;
}

}   // namespace

KESTO_IN_REGISTERS void release_record(const Decoder& decoder, u8* record)
{
    ensure_memory_services(*decoder.unit);
    for (u32 i = 0; i < decoder.owned_block_count; ++i) {
        const OwnedBlock& part = decoder.owned_blocks[i];
        u8* const pointer = record + part.pointer;
        if (part.element != nullptr) {
            u8* const records = field_pointer(pointer);
            if (records == nullptr)
                continue;
            release_elements(*part.element, records, field_value<u32>(pointer - counted_pointer));
        }
        // required: called for an absent text or block too, with a null pointer
        release_block(*decoder.unit, part.free_routine, pointer);
    }
}

KESTO_IN_REGISTERS u32 vtable_of(Input in, u32 table, u32 slots)
{
    TableView<Input> view;
    return open_table(in, table, view) == TableFault::none && holds_slots(view, slots) ? view.vtable : 0;
}

KESTO_IN_REGISTERS bool copy_text(const u8* text, u32 length, u8* field, const Decoder& decoder, const char* routine)
{
    u8* const copy = allocate(decoder, routine, length + 1);   // no wrap: the text fits the input, below 2^31
    set_field<u8*>(field, copy);
    if (copy == nullptr)
        return false;
    if (length != 0)
        memcpy_sOptAsm(copy, length, text, length);
    copy[length] = 0;   // the sender's own NUL is neither read nor needed
    return true;
}

KESTO_IN_REGISTERS bool copy_block(const u8* block, u32 length, u8* field, const Decoder& decoder, const char* routine)
{
    set_field<u32>(field, length);   // stays set even if the allocation fails
    if (length == 0)
        return true;
    u8* const copy = allocate(decoder, routine, length);
    set_field<u8*>(field + counted_pointer, copy);
    if (copy == nullptr)
        return false;
    memcpy_sOptAsm(copy, length, block, length);
    return true;
}

bool decode_wrapped_vector(Input in, u32 cells, u32 count, u8* field, const Decoder& decoder, const char* routine,
                           const NestedDecoder& element)
{
    const Decoder& of = *element.decoder;
    const u32 size = count * of.record_size;   // required: the product wraps in 32 bits, given many megabytes of cells
    if (size == 0) {
        u32 table = 0;
        if (element_table(in, cells, 0, table))
            log_decode_parameters(*of.unit, routine, in.bytes, in.length, nullptr);
        return false;
    }
    u8* const records = allocate(decoder, routine, size);
    set_field<u8*>(field + counted_pointer, records);
    if (records == nullptr)
        return false;
    // The product wrapped, so the block holds fewer elements than the count says. No element is decoded past its end,
    // and the block is released here, before a later release could follow the count.
    const u32 whole = size / of.record_size;
    (void)element.decode_elements(in, cells, whole, records, element);
    release_elements(of, records, whole);
    release_block(*decoder.unit, decoder.free_routine, field + counted_pointer);
    return false;
}

KESTO_ENTRY void free_unpacked(KESTO_WITH(const Decoder& decoder, void* record))
{
    if (record != nullptr)
        release_record(decoder, static_cast<u8*>(record));
}

bool decode_any_nested(Input in, u32 table, u8* record, const NestedDecoder& message)
{
    const Decoder& decoder = *message.decoder;
    Frame frame{in, {}, &decoder, message.routine};
    const TableFault fault = open_table(in, table, frame.view);
    if (fault != TableFault::none) [[unlikely]] {
        refuse_table(frame, fault);
        return false;
    }
    if (decode_slots(frame, record)) [[likely]]
        return true;
    if (decoder.owned_block_count != 0)
        release_record(decoder, record);
    return false;
}

KESTO_IN_REGISTERS bool clear_and_decode_nested(Input in, u32 table, u8* record, const NestedDecoder& message)
{
    std::memset(record, 0, message.decoder->record_size);
    return decode_any_nested(in, table, record, message);
}

KESTO_ENTRY u32 decode_message(KESTO_WITH(const Decoder& decoder, const u8* bytes, u32 length, u8* record))
{
    if (!may_decode(bytes, length, record)) [[unlikely]] {
        log_decode_parameters(*decoder.unit, decoder.unpack_routine, bytes, length, record);
        return decoder.record_size;
    }
    Frame frame{{bytes, length}, {}, &decoder, decoder.unpack_routine};
    const TableFault fault = open_table(frame.in, root_table(frame.in), frame.view);
    if (fault != TableFault::none) [[unlikely]] {
        refuse_table(frame, fault);
        return decoder.record_size;
    }
    ensure_memory_services(*decoder.unit);
    std::memset(record, 0, decoder.record_size);
    if (!decode_slots(frame, record) && decoder.owned_block_count != 0)
        release_record(decoder, record);
    return decoder.record_size;
}

}   // namespace kesto
