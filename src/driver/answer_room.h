// Answers, one at a time, and what happens to one whose reader falls silent: the next client's turn
// comes, and the answer is finished on the side. So a slow reader, who can't be told from a silent
// one for many seconds, is served to the end, and a silent one costs the others a second at most.
#pragma once

#include <cstddef>
#include <future>
#include <list>

/// An answer that is being given, on a thread of its own.
class Answer {
public:
    using Give = void (*)(int client);

    /// Takes the connection `client`. What `give` writes to it may wait for room.
    /// Throws std::system_error if there is no thread to be had; then it is still the caller's.
    Answer(int client, Give give);
    /// Closes the connection. An answer that isn't over ends where it is.
    ~Answer();
    Answer(const Answer&) = delete;
    Answer& operator=(const Answer&) = delete;

    bool isOver() const;
    /// Waits as long as the reader takes what is written. False if he has taken nothing to speak of
    /// in `patience` looks, 50 milliseconds each; true if the answer is over.
    bool isOverBeforeSilence(int patience) const;

private:
    int client;
    std::future<void> giving;
};

/// The answers of one server.
class AnswerRoom {
public:
    /// At most `mostUnread` answers are finished on the side; one more ends the oldest.
    AnswerRoom(Answer::Give give, std::size_t mostUnread) : give(give), mostUnread(mostUnread) {}

    /// Answers `client` and closes it. Returns early if its reader falls silent.
    void attend(int client);

private:
    Answer::Give give;
    std::size_t mostUnread;
    std::list<Answer> unread;  ///< Oldest first.
};
