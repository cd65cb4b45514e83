// Tells a second running instance of the program from the first, by a lock on a file in the user's runtime
// folder.
#pragma once

#include <string>

class CInstanceLock
{
public:
    /// Takes the lock on the file, which is made if need be. The system drops the lock when the process ends,
    /// however it ends.
    explicit CInstanceLock(const std::string& path = DefaultPath());
    ~CInstanceLock();
    CInstanceLock(const CInstanceLock&) = delete;
    CInstanceLock& operator=(const CInstanceLock&) = delete;

    /// False while another instance runs. Where no lock can be had at all, every instance counts as the
    /// first.
    bool IsFirst() const { return m_first; }

    static std::string DefaultPath();

private:
    int m_handle = -1;
    bool m_first = true;
};
