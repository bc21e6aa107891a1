// A folder that a test fills and that goes with it.
#ifndef KORVAN_TESTS_TEMPORARY_FOLDER_H
#define KORVAN_TESTS_TEMPORARY_FOLDER_H

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

class TemporaryFolder {
public:
    TemporaryFolder() {
        std::string pattern = std::filesystem::temp_directory_path() / "korvan-XXXXXX";
        m_path = mkdtemp(pattern.data());
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() { std::filesystem::remove_all(m_path); }

    const std::string& path() const { return m_path; }
    std::string operator/(const std::string& name) const { return m_path + "/" + name; }
    void folder(const std::string& name) const {
        std::filesystem::create_directories(m_path + "/" + name);
    }
    void file(const std::string& name) const { std::ofstream(m_path + "/" + name) << "x"; }

private:
    std::string m_path;
};

#endif
