#ifndef VRK_APPS_VRK_SWEEP_MPI_SWEEPRANKLINK_H
#define VRK_APPS_VRK_SWEEP_MPI_SWEEPRANKLINK_H

#include <chrono>
#include <list>
#include <string>
#include <vector>

#include <mpi.h>

namespace Sweep {

// The MPI job of a sweep started by mpirun, set up while the link lives, and the
// messages its ranks exchange: lists of words, sent without blocking, so that two ranks
// sending to each other at once never wait on one another.
class SweepRankLink {
public:
    enum class Tag { Job = 1, Outcome, Alive, End, Cancel };
    // Rank 0 and the others tell each other that they live this often, and give one
    // another up after a silence of `LostAfter`, far longer even on a loaded machine.
    static constexpr std::chrono::milliseconds AliveEvery{500};
    static constexpr std::chrono::seconds LostAfter{5};
    struct Message {
        int rank = 0;
        Tag tag = Tag::Job;
        std::vector<std::string> words;
    };

    SweepRankLink();
    ~SweepRankLink();
    SweepRankLink(const SweepRankLink&) = delete;
    SweepRankLink& operator=(const SweepRankLink&) = delete;

    int getRank() const { return rank_; }
    int getSize() const { return size_; }
    // Rank 0's `value`, on every rank.
    int broadcast(int value);
    void send(int rank, Tag tag, const std::vector<std::string>& words);
    // Takes the next message that has come, if any; never blocks.
    bool receive(Message& message);
    // Once a rank is lost, the job can no longer end together: the link then ends
    // without MPI's closing handshake, which would wait for the lost rank.
    void giveUp() { givenUp_ = true; }

private:
    struct Sending {
        std::string bytes;
        MPI_Request request;
    };

    void forgetSent();

    int rank_ = 0;
    int size_ = 1;
    bool givenUp_ = false;
    // A message's bytes must outlive its sending.
    std::list<Sending> sending_;
};

} // namespace Sweep

#endif
