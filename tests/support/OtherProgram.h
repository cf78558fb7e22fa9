#pragma once

class TestDatabase;
struct sqlite3;

/// Another program that has the data file open, until it is destroyed.
class OtherProgram
{
public:
    /// What it begins with, to hold the file.
    static constexpr char Reading[] = "BEGIN; SELECT count(*) FROM tasks";
    static constexpr char Writing[] = "BEGIN IMMEDIATE";
    static constexpr char Committing[] = "BEGIN EXCLUSIVE";

    OtherProgram(const TestDatabase& database, const char* statements);
    ~OtherProgram();
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;

    /// Whether it could do what it was told last.
    bool holds() const { return m_holds; }
    void run(const char* statements);

private:
    sqlite3* m_handle = nullptr;
    bool m_holds = false;
};
