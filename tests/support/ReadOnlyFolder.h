// A folder that can't be written to while this lives, by a user whom permissions hold back.
#pragma once

#include <filesystem>
#include <optional>

#include "tests/support/OrdinaryUser.h"

class ReadOnlyFolder {
 public:
  explicit ReadOnlyFolder(const std::filesystem::path& folder)
      : m_folder(folder), m_permissions(std::filesystem::status(folder).permissions()) {
    using std::filesystem::perms;
    std::filesystem::permissions(folder.parent_path(), perms::owner_all | perms::group_exec |
                                                           perms::others_read | perms::others_exec);
    std::filesystem::permissions(folder, perms(0555));
    m_user.emplace();
  }
  ~ReadOnlyFolder() {
    m_user.reset();
    std::filesystem::permissions(m_folder, m_permissions);
  }
  ReadOnlyFolder(const ReadOnlyFolder&) = delete;
  ReadOnlyFolder& operator=(const ReadOnlyFolder&) = delete;
  // Whether permissions hold this user back at all.
  bool Holds() const { return m_user->IsOne(); }

 private:
  std::filesystem::path m_folder;
  std::filesystem::perms m_permissions;
  std::optional<OrdinaryUser> m_user;
};
