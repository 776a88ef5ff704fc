#pragma once

#include <string>

/// A file that is there once it is whole, and never before: without a name while it is written where the file system
/// knows such files, else with a hidden one.
class NewFile
{
public:
    /// In a folder that is there. Ask isOpen().
    explicit NewFile(const std::string &folder);
    /// What has no name yet is gone.
    ~NewFile();
    NewFile(const NewFile &) = delete;
    NewFile &operator=(const NewFile &) = delete;

    bool isOpen() const { return descriptor_ >= 0; }
    /// False, with errno set.
    bool write(const void *bytes, size_t size);
    /// Gives it the name, or that with " 2", " 3" and so on before its extension: no file is replaced. Returns its
    /// path; empty, with errno set, where there is none.
    std::string publish(const std::string &name, const std::string &extension);

private:
    bool takePath(const std::string &path);

    const std::string folder_;
    std::string hidden_; ///< the path that it has meanwhile; empty where it has none
    int descriptor_ = -1;
};

/// Makes a folder and those above it that are missing; false, with errno set.
bool makeFolder(const std::string &path);
