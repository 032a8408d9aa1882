#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <memory>

namespace tarnel::sqlite {

// The open files of a program, each open once: all who ask for a file share it. What the last of them lets go of rests,
// ready for whoever asks next, because opening a file costs more than most of what is done with it; only the one that
// was used last is kept so. What is Opened tells its path(), whether that path still leads to its file (isInReach()),
// comes to rest() and wakes up again (wake()); see ConnectedFile.
template <class Opened>
class Connections {
 public:
  using Open = std::function<std::unique_ptr<Opened>()>;

  std::shared_ptr<Opened> to(const std::filesystem::path& path, const Open& open) {
    std::weak_ptr<Opened>& known = inUse_[path];
    if (auto connection = known.lock(); connection && connection->isInReach()) return connection;
    auto connection = shared(awakened(path));
    if (!connection) connection = shared(open());
    known = connection;
    return connection;
  }

  // Each that is in use.
  template <class Visit>
  void each(Visit visit) const {
    for (const auto& [path, connection] : inUse_)
      if (const auto used = connection.lock()) visit(*used);
  }

 private:
  using Place = std::unique_ptr<Opened>;

  // None, and none that rests any more, when it can't be used for that file.
  Place awakened(const std::filesystem::path& path) {
    Place connection = std::move(*resting_);
    if (connection && connection->path() == path && connection->wake()) return connection;
    return nullptr;
  }

  std::shared_ptr<Opened> shared(Place connection) {
    if (!connection) return nullptr;
    return {connection.release(), [place = std::weak_ptr<Place>(resting_)](Opened* released) {
              Place own(released);
              const auto resting = place.lock();
              if (resting && own->rest()) *resting = std::move(own);
            }};
  }

  std::map<std::filesystem::path, std::weak_ptr<Opened>> inUse_;
  std::shared_ptr<Place> resting_ = std::make_shared<Place>();
};

}  // namespace tarnel::sqlite
