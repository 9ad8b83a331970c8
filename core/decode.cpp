#include "core/decode.h"

#include "platform/bounded_memory.h"

namespace kesto {

namespace {

// Null, after a log line, when there is no memory.
u8* allocate(const Frame& frame, u32 size)
{
    Unit& unit = *frame.decoder->unit;
    void* const block = unit.allocate(size, OSAL_MEMORY_MODULE, frame.routine);
    if (block == nullptr) [[unlikely]]
        log_allocation(unit, frame.routine, size);
    return static_cast<u8*>(block);
}

void release_block(const Decoder& owner, u8* pointer_field)
{
    owner.unit->release(field_pointer(pointer_field), OSAL_MEMORY_MODULE, owner.free_routine);
    set_field<u8*>(pointer_field, nullptr);
}

// Releases a vector whose block holds `count` whole elements; nothing when there is no block.
void release_vector(const Decoder& owner, const Decoder& element, u8* field, u32 count)
{
    u8* const pointer_field = field + counted_pointer;
    u8* const records = field_pointer(pointer_field);
    if (records == nullptr)
        return;
    if (element.heap_field_count != 0)
        for (u32 i = 0; i < count; ++i)
            release_record(element, records + std::size_t{i} * element.record_size);
    release_block(owner, pointer_field);
}

}   // namespace

bool decode_text(const Frame& frame, u32 offset, u8* field)
{
    u32 payload = 0, length = 0;
    if (!open_body(frame.in, frame.view, offset, payload, length) || !payload_fits(frame.in, payload, length, 1))
        return false;
    u8* const text = allocate(frame, length + 1);   // length < 2^31, as it fits
    set_field<u8*>(field, text);
    if (text == nullptr)
        return false;
    if (length != 0)
        memcpy_sOptAsm(text, length, frame.in.bytes_unchecked(payload, 0, length), length);   // payload_fits
    text[length] = 0;   // the sender's own NUL is neither read nor needed
    return true;
}

bool decode_block(const Frame& frame, u32 offset, u8* field)
{
    u32 payload = 0, length = 0;
    if (!open_body(frame.in, frame.view, offset, payload, length) || !payload_fits(frame.in, payload, length, 1))
        return false;
    set_field<u32>(field, length);   // stays even if the allocation fails
    if (length == 0)
        return true;
    u8* const block = allocate(frame, length);
    set_field<u8*>(field + counted_pointer, block);
    if (block == nullptr)
        return false;
    memcpy_sOptAsm(block, length, frame.in.bytes_unchecked(payload, 0, length), length);   // payload_fits
    return true;
}

bool decode_vector(const Frame& frame, u32 offset, u8* field, const NestedDecoder& element)
{
    u32 cells = 0, count = 0;
    if (!open_body(frame.in, frame.view, offset, cells, count) || !payload_fits(frame.in, cells, count, cell_bytes))
        return false;
    set_field<u32>(field, count);   // stays even if the next lines fail
    if (count == 0)
        return true;

    const u32 record_size = element.decoder->record_size;
    const u64 needed = u64{count} * record_size;
    const u32 size = static_cast<u32>(needed);   // required: in 32 bits, which many megabytes of cells can exceed
    if (size == 0) [[unlikely]] {
        u32 table = 0;
        if (element_table(frame.in, cells, 0, table))
            log_decode_parameters(*element.decoder->unit, element.routine, frame.in.bytes, frame.in.length, nullptr);
        return false;
    }
    u8* const records = allocate(frame, size);
    set_field<u8*>(field + counted_pointer, records);
    if (records == nullptr)
        return false;
    memset_s(records, size, 0, size);
    if (size == needed) [[likely]]
        return element.decode_elements(frame.in, cells, count, records, element);
    // The block of a wrapped size holds fewer elements than the count says. None is decoded past its end, and the block
    // is gone before a free could walk the count.
    const u32 whole = size / record_size;
    (void)element.decode_elements(frame.in, cells, whole, records, element);
    release_vector(*frame.decoder, *element.decoder, field, whole);
    return false;
}

void release_record(const Decoder& decoder, u8* record)
{
    ensure_memory_services(*decoder.unit);
    for (u32 i = 0; i < decoder.heap_field_count; ++i) {
        const HeapField& heap = decoder.heap_fields[i];
        u8* const field = record + heap.record_offset;
        switch (heap.kind) {
        case Kind::text:
            release_block(decoder, field);   // required: release is called for an absent text too, with null
            break;
        case Kind::block:
            release_block(decoder, field + counted_pointer);   // likewise
            break;
        case Kind::table: release_record(*decoder.nested[heap.nested].decoder, field); break;
        case Kind::vector:
            release_vector(decoder, *decoder.nested[heap.nested].decoder, field, field_value<u32>(field));
            break;
        case Kind::scalar:
        case Kind::array: break;
        }
    }
}

void free_unpacked(void* record, const Decoder& decoder)
{
    if (record != nullptr)
        release_record(decoder, static_cast<u8*>(record));
}

bool open_message(Frame& frame, const u8* bytes, u32 length, const void* record, const Decoder& decoder)
{
    if (!may_decode(bytes, length, record)) [[unlikely]] {
        log_decode_parameters(*decoder.unit, decoder.unpack_routine, bytes, length, record);
        return false;
    }
    frame = {{bytes, length}, {}, &decoder, decoder.unpack_routine};
    const TableFault fault = open_table(frame.in, root_table(frame.in), frame.view);
    if (fault != TableFault::none) [[unlikely]] {
        refuse_table(frame, fault);
        return false;
    }
    ensure_memory_services(*decoder.unit);
    return true;
}

bool decode_short_vtable(const Frame& frame, u32 slots, u8* record, DecodeSlots decode)
{
    u8 filled_up[slot_bytes * most_slots];   // the slots that are missing are absent
    for (u32 k = 0; k < slots; ++k)
        store(filled_up + std::size_t{slot_bytes} * k, static_cast<u16>(slot_offset(frame.in, frame.view, k)));
    return decode(frame, filled_up, record);
}

void refuse_table(const Frame& frame, TableFault fault)
{
    log_table_fault(*frame.decoder->unit, frame.routine, fault, frame.in, frame.view);
}

}   // namespace kesto
