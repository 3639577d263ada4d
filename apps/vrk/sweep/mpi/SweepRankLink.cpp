#include "apps/vrk/sweep/mpi/SweepRankLink.h"

#include <chrono>
#include <thread>

namespace Sweep {

namespace {

// Each word ends with a NUL, so that no word and one empty word differ.
std::string join(const std::vector<std::string>& words)
{
    std::string bytes;
    for (const auto& word : words)
        bytes.append(word).push_back('\0');
    return bytes;
}

std::vector<std::string> split(const std::string& bytes)
{
    std::vector<std::string> words;
    for (size_t start = 0; start < bytes.size();) {
        const size_t end = bytes.find('\0', start);
        words.push_back(bytes.substr(start, end - start));
        start = end + 1;
    }
    return words;
}

} // namespace

SweepRankLink::SweepRankLink()
{
    MPI_Init(nullptr, nullptr);
    // A rank that is gone makes a call fail rather than end the job from inside it.
    MPI_Comm_set_errhandler(MPI_COMM_WORLD, MPI_ERRORS_RETURN);
    MPI_Comm_rank(MPI_COMM_WORLD, &rank_);
    MPI_Comm_size(MPI_COMM_WORLD, &size_);
}

SweepRankLink::~SweepRankLink()
{
    // A rank that is gone never takes its messages: their sending is given up after a
    // while rather than waited for.
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(2);
    while (!sending_.empty() && std::chrono::steady_clock::now() < deadline) {
        forgetSent();
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    for (auto& sending : sending_)
        MPI_Request_free(&sending.request);
    if (!givenUp_)
        MPI_Finalize();
}

int SweepRankLink::broadcast(int value)
{
    MPI_Bcast(&value, 1, MPI_INT, 0, MPI_COMM_WORLD);
    return value;
}

void SweepRankLink::send(int rank, Tag tag, const std::vector<std::string>& words)
{
    forgetSent();
    sending_.push_back({join(words), MPI_REQUEST_NULL});
    Sending& sending = sending_.back();
    MPI_Isend(sending.bytes.data(), static_cast<int>(sending.bytes.size()), MPI_CHAR, rank,
              static_cast<int>(tag), MPI_COMM_WORLD, &sending.request);
}

bool SweepRankLink::receive(Message& message)
{
    forgetSent();
    int waiting = 0;
    MPI_Status status;
    MPI_Iprobe(MPI_ANY_SOURCE, MPI_ANY_TAG, MPI_COMM_WORLD, &waiting, &status);
    if (!waiting)
        return false;
    int size = 0;
    MPI_Get_count(&status, MPI_CHAR, &size);
    std::string bytes(static_cast<size_t>(size), '\0');
    MPI_Recv(&bytes[0], size, MPI_CHAR, status.MPI_SOURCE, status.MPI_TAG, MPI_COMM_WORLD,
             MPI_STATUS_IGNORE);
    message = {status.MPI_SOURCE, static_cast<Tag>(status.MPI_TAG), split(bytes)};
    return true;
}

void SweepRankLink::forgetSent()
{
    for (auto sending = sending_.begin(); sending != sending_.end();) {
        int done = 0;
        MPI_Test(&sending->request, &done, MPI_STATUS_IGNORE);
        sending = done ? sending_.erase(sending) : std::next(sending);
    }
}

} // namespace Sweep
