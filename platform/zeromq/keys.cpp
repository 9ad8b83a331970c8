#include "platform/zeromq/keys.h"

#include <algorithm>
#include <errno.h>
#include <pthread.h>
#include <signal.h>
#include <string.h>
#include <zmq.h>

#include "platform/zeromq/lines.h"

namespace {

constexpr const char* no_key = "no key, or not one of 40 characters";

[[nodiscard]] bool read_key(const char* word, uint8_t (&key)[KEY_BYTES])
{
    return word != nullptr && strlen(word) == KEY_ROOM - 1 && zmq_z85_decode(key, word) != nullptr;
}

const char* read_secret(const char* word, Keys& keys)
{
    uint8_t key[KEY_BYTES];
    if (keys.secret_key[0] != '\0')
        return "a second secret key";
    if (!read_key(word, key))
        return no_key;
    memcpy(keys.secret_key, word, KEY_ROOM);
    return zmq_curve_public(keys.public_key, keys.secret_key) == 0 ? nullptr : "this ZeroMQ knows no keys";
}

const char* read_sender(const char* word, Keys& keys)
{
    if (keys.sender_count == MOST_ENDPOINTS)
        return "too many senders";
    if (!read_key(word, keys.senders[keys.sender_count]))
        return no_key;
    ++keys.sender_count;
    return nullptr;
}

const char* read_receiver(const char* address, const char* word, Keys& keys)
{
    uint8_t key[KEY_BYTES];
    if (keys.receiver_count == MOST_ENDPOINTS || address == nullptr || strlen(address) >= ENDPOINT_ROOM)
        return "too many receivers, or no address, or too long a one";
    if (receiver_key(keys, address) != nullptr)
        return "a second key for this receiver";
    if (!read_key(word, key))
        return no_key;
    Receiver& receiver = keys.receivers[keys.receiver_count++];
    memcpy(receiver.address, address, strlen(address) + 1);
    memcpy(receiver.key, word, KEY_ROOM);
    return nullptr;
}

// Parses secret KEY, sender KEY, or receiver ADDRESS KEY. Returns null, or a text that says what is wrong.
const char* read_key_line(const Words& words, Keys& keys)
{
    if (strcmp(words[0], "receiver") == 0 && words[3] == nullptr)
        return read_receiver(words[1], words[2], keys);
    if (strcmp(words[0], "secret") == 0 && words[2] == nullptr)
        return read_secret(words[1], keys);
    if (strcmp(words[0], "sender") == 0 && words[2] == nullptr)
        return read_sender(words[1], keys);
    return "neither secret KEY, sender KEY nor receiver ADDRESS KEY";
}

// Admission: ZeroMQ sends requests to inproc://zeromq.zap.01, in frames of at most 255 bytes, and obeys the third frame
// of the answer. By then the sender has proved that it holds the secret key of the public key in the request.

enum { VERSION, REQUEST, DOMAIN, ADDRESS, IDENTITY, MECHANISM, CREDENTIALS, QUESTION_FRAMES };

struct Frame {
    uint8_t bytes[256];
    size_t length;
};

struct Admission {
    void* socket;
    const Keys* keys;
    pthread_t thread;
};

constinit Admission admission{};

// Returns false at the end of the context or if ZeroMQ fails. Surplus frames are discarded, but `count` includes them.
[[nodiscard]] bool read_question(Frame (&frames)[QUESTION_FRAMES + 1], int& count)
{
    int more = 1;
    for (count = 0; more != 0; ++count) {
        Frame& frame = frames[count < QUESTION_FRAMES ? count : QUESTION_FRAMES];
        int got;
        do
            got = zmq_recv(admission.socket, frame.bytes, sizeof frame.bytes, 0);
        while (got < 0 && errno == EINTR);
        if (got < 0)
            return false;
        frame.length = std::min(static_cast<size_t>(got), sizeof frame.bytes);
        size_t size = sizeof more;
        zmq_getsockopt(admission.socket, ZMQ_RCVMORE, &more, &size);
    }
    return true;
}

[[nodiscard]] bool admits(const Frame& mechanism, const Frame& key)
{
    if (mechanism.length != 5 || memcmp(mechanism.bytes, "CURVE", 5) != 0 || key.length != KEY_BYTES)
        return false;
    const auto& senders = admission.keys->senders;
    return std::any_of(senders, senders + admission.keys->sender_count,
                       [&](const auto& sender) { return memcmp(sender, key.bytes, KEY_BYTES) == 0; });
}

void* admit(void*)
{
    Frame question[QUESTION_FRAMES + 1];
    for (int count; read_question(question, count);) {
        const bool good = count == QUESTION_FRAMES && admits(question[MECHANISM], question[CREDENTIALS]);
        zmq_send(admission.socket, "1.0", 3, ZMQ_SNDMORE);
        zmq_send(admission.socket, question[REQUEST].bytes, question[REQUEST].length, ZMQ_SNDMORE);
        zmq_send(admission.socket, good ? "200" : "400", 3, ZMQ_SNDMORE);
        for (int rest = 0; rest < 3; ++rest)   // status text, user name and properties
            zmq_send(admission.socket, "", 0, rest < 2 ? ZMQ_SNDMORE : 0);
    }
    // The socket stays open until all others are closed: without it, ZeroMQ would admit everyone who knows the
    // receiver's key.
    return nullptr;
}

}   // namespace

bool read_keys(FILE* file, const char* name, Keys& keys)
{
    // Only whole lines are comments, because a key may contain #.
    const bool good = read_lines(file, name, false, "", [&](const Words& words) { return read_key_line(words, keys); });
    if (good && keys.secret_key[0] == '\0')
        fprintf(stderr, "%s: no secret key\n", name);
    return good && keys.secret_key[0] != '\0';
}

const char* receiver_key(const Keys& keys, const char* address)
{
    for (uint32_t i = 0; i < keys.receiver_count; ++i)
        if (strcmp(keys.receivers[i].address, address) == 0)
            return keys.receivers[i].key;
    return nullptr;
}

bool start_admission(void* zeromq, const Keys& keys)
{
    admission.keys = &keys;
    admission.socket = zmq_socket(zeromq, ZMQ_REP);
    if (admission.socket == nullptr)
        return false;
    sigset_t all, before;   // signals are for the program's own threads only
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before);
    const bool started = zmq_bind(admission.socket, "inproc://zeromq.zap.01") == 0 &&
                         pthread_create(&admission.thread, nullptr, admit, nullptr) == 0;
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
    if (!started) {
        zmq_close(admission.socket);
        admission.socket = nullptr;
    }
    return started;
}

void end_admission()
{
    if (admission.socket == nullptr)
        return;
    pthread_join(admission.thread, nullptr);
    zmq_close(admission.socket);
}
