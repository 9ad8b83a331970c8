#include "tools/kesto/capture.h"

#include <fcntl.h>
#include <pcap/pcap.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "model/little_endian.h"
#include "tools/kesto/gzip_file.h"

namespace kesto::tools {

namespace {

constexpr std::uint32_t head_length = 8;
constexpr std::uint64_t file_head = 24, record_head = 16;
constexpr std::uint64_t report_every = 1 << 20;

std::string link_type_text(int type)
{
    const char* const name = pcap_datalink_val_to_name(type);
    const std::string number = std::to_string(type);
    return name == nullptr ? number : name + (" (" + number + ")");
}

PacketFault fault_of(const pcap_pkthdr& head, const u_char* bytes)
{
    if (head.caplen < head.len)
        return PacketFault::cut;
    if (head.caplen < head_length)
        return PacketFault::short_packet;
    return model::get32(bytes + 4) == head.caplen - head_length ? PacketFault::none : PacketFault::length_disagrees;
}

}   // namespace

const char* name_of(PacketFault fault)
{
    switch (fault) {
    case PacketFault::none: return "none";
    case PacketFault::cut: return "cut";
    case PacketFault::short_packet: return "short_packet";
    case PacketFault::length_disagrees: break;
    }
    return "length_disagrees";
}

const char* text_of(PacketFault fault)
{
    switch (fault) {
    case PacketFault::none: return "a message";
    case PacketFault::cut: return "the capture kept only the first bytes of the packet";
    case PacketFault::short_packet: return "the packet has no room for id and length";
    case PacketFault::length_disagrees: break;
    }
    return "the packet's length disagrees with its bytes";
}

void CaptureReader::Closer::operator()(pcap* handle) const { pcap_close(handle); }

bool CaptureReader::open(const std::string& path, std::string& error)
{
    name_ = path == "-" ? "standard input" : path;
    number_ = all_ = 0;
    read_ = file_head;
    next_report_ = report_every;
    const int descriptor = path == "-" ? dup(STDIN_FILENO) : ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    struct stat status;
    if (descriptor >= 0 && fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode))
        all_ = static_cast<std::uint64_t>(status.st_size);
    std::FILE* const file = descriptor < 0 ? nullptr : open_gzip(descriptor);
    if (file == nullptr) {
        error = name_ + ": " + std::strerror(errno);
        if (descriptor >= 0)
            close(descriptor);
        return false;
    }
    char reason[PCAP_ERRBUF_SIZE] = "";
    handle_.reset(pcap_fopen_offline(file, reason));   // owns the file if it succeeds
    if (handle_ == nullptr) {
        error = name_ + ": " + reason;
        std::fclose(file);
        return false;
    }
    const int link_type = pcap_datalink(handle_.get());
    if (link_type != DLT_USER0) {
        error = name_ + ": the capture has link type " + link_type_text(link_type) + ", not USER0 (147)";
        handle_.reset();
        return false;
    }
    return true;
}

bool CaptureReader::next(CapturedPacket& packet, std::string& error)
{
    pcap_pkthdr* head = nullptr;
    const u_char* bytes = nullptr;
    const int result = pcap_next_ex(handle_.get(), &head, &bytes);
    if (result != 1) {
        error = result == PCAP_ERROR
                    ? name_ + ": after packet " + std::to_string(number_) + ": " + pcap_geterr(handle_.get())
                    : "";
        return false;
    }
    packet.number = ++number_;
    // Classic captures store seconds as unsigned 32-bit numbers, which libpcap reads as signed; pcapng, whose version
    // is 1, has 64 bits.
    packet.seconds = head->ts.tv_sec;
    if (pcap_major_version(handle_.get()) != 1)
        packet.seconds = static_cast<std::uint32_t>(packet.seconds);
    packet.microseconds = static_cast<std::uint32_t>(head->ts.tv_usec);
    packet.fault = fault_of(*head, bytes);
    packet.id = head->caplen < 4 ? 0 : model::get32(bytes);
    packet.bytes = {};
    if (head->caplen > head_length)
        packet.bytes = {bytes + head_length, head->caplen - head_length};
    read_ += record_head + head->caplen;
    report_progress();
    return true;
}

void CaptureReader::report_progress()
{
    if (!progress || read_ < next_report_)
        return;
    progress(read_, all_);
    next_report_ = read_ + report_every;
}

}   // namespace kesto::tools
