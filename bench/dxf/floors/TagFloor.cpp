// The least that reading a drawing file can cost: its lines are found, its group codes and numbers parsed,
// and nothing is kept but a sum. With a second file name the tags are kept in 24 bytes each and written out
// again. Usage: bench_dxf_floor FILE [OUT]
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string_view>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

enum class Kind { text, real, integer };

Kind kindOf(int c) {
  if ((c >= 10 && c < 60) || (c >= 110 && c < 150) || (c >= 210 && c < 240) || (c >= 460 && c < 470) ||
      (c >= 1010 && c < 1060))
    return Kind::real;
  if ((c >= 60 && c < 100) || (c >= 160 && c < 180) || (c >= 270 && c < 300) || (c >= 370 && c < 390) ||
      (c >= 400 && c < 410) || (c >= 420 && c < 430) || (c >= 440 && c < 460) || (c >= 1060 && c < 1072))
    return Kind::integer;
  return Kind::text;
}

struct Tag {
  std::int32_t code;
  std::uint32_t length;
  union {
    const char* text;
    double real;
    std::int64_t integer;
  };
};

std::vector<char> readFile(const char* path) {
  const int file = ::open(path, O_RDONLY);
  struct stat status {};
  if (file < 0 || ::fstat(file, &status) != 0) return {};
  std::vector<char> bytes(static_cast<std::size_t>(status.st_size));
  for (std::size_t at = 0; at < bytes.size();) {
    const ssize_t got = ::read(file, bytes.data() + at, bytes.size() - at);
    if (got <= 0) return {};
    at += static_cast<std::size_t>(got);
  }
  ::close(file);
  return bytes;
}

bool writeFile(const char* path, const char* bytes, std::size_t size) {
  const int file = ::open(path, O_CREAT | O_WRONLY | O_TRUNC, 0644);
  for (std::size_t at = 0; at < size;) {
    const ssize_t put = ::write(file, bytes + at, size - at);
    if (put <= 0) return false;
    at += static_cast<std::size_t>(put);
  }
  return ::close(file) == 0;
}

std::string_view line(const char*& at, const char* end) {
  const auto* feed = static_cast<const char*>(std::memchr(at, '\n', static_cast<std::size_t>(end - at)));
  std::string_view text(at, static_cast<std::size_t>((feed ? feed : end) - at));
  at = feed ? feed + 1 : end;
  if (!text.empty() && text.back() == '\r') text.remove_suffix(1);
  return text;
}

std::string_view trimmed(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  return text;
}

template <typename Take> void eachTag(const std::vector<char>& bytes, Take take) {
  const char* at = bytes.data();
  const char* const end = at + bytes.size();
  while (at < end) {
    const std::string_view code = trimmed(line(at, end));
    std::string_view value = line(at, end);
    Tag tag{};
    std::from_chars(code.data(), code.data() + code.size(), tag.code);
    switch (kindOf(tag.code)) {
    case Kind::text:
      tag.text = value.data();
      tag.length = static_cast<std::uint32_t>(value.size());
      break;
    case Kind::real:
      value = trimmed(value);
      std::from_chars(value.data(), value.data() + value.size(), tag.real);
      break;
    case Kind::integer:
      value = trimmed(value);
      std::from_chars(value.data(), value.data() + value.size(), tag.integer);
      break;
    }
    take(tag);
  }
}

int readOnly(const std::vector<char>& bytes) {
  std::size_t count = 0;
  std::uint64_t texts = 0;
  std::int64_t integers = 0;
  double reals = 0;
  eachTag(bytes, [&](const Tag& tag) {
    ++count;
    switch (kindOf(tag.code)) {
    case Kind::text:
      texts += tag.length;
      break;
    case Kind::real:
      reals += tag.real;
      break;
    case Kind::integer:
      integers += tag.integer;
      break;
    }
  });
  std::printf("%zu tags, %llu %g %lld\n", count, static_cast<unsigned long long>(texts), reals,
              static_cast<long long>(integers));
  return 0;
}

int readAndWrite(const std::vector<char>& bytes, const char* path) {
  std::vector<Tag> tags;
  tags.reserve(bytes.size() / 16);
  eachTag(bytes, [&](const Tag& tag) { tags.push_back(tag); });
  std::vector<char> out(bytes.size() + bytes.size() / 4 + 65536);
  char* at = out.data();
  for (const Tag& tag : tags) {
    if (tag.code < 10) *at++ = ' ';
    if (tag.code < 100) *at++ = ' ';
    at = std::to_chars(at, at + 8, tag.code).ptr;
    *at++ = '\n';
    char* const value = at;
    switch (kindOf(tag.code)) {
    case Kind::text:
      std::memcpy(at, tag.text, tag.length);
      at += tag.length;
      break;
    case Kind::real:
      at = std::to_chars(at, at + 40, tag.real).ptr;
      if (!std::memchr(value, '.', static_cast<std::size_t>(at - value)) &&
          !std::memchr(value, 'e', static_cast<std::size_t>(at - value))) {
        *at++ = '.';
        *at++ = '0';
      }
      break;
    case Kind::integer:
      at = std::to_chars(at, at + 24, tag.integer).ptr;
      break;
    }
    *at++ = '\n';
  }
  return writeFile(path, out.data(), static_cast<std::size_t>(at - out.data())) ? 0 : 1;
}

} // namespace

int main(int count, char** arguments) {
  if (count < 2) return 2;
  const std::vector<char> bytes = readFile(arguments[1]);
  if (bytes.empty()) return 1;
  return count > 2 ? readAndWrite(bytes, arguments[2]) : readOnly(bytes);
}
