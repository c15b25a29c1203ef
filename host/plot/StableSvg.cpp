#include "host/plot/StableSvg.h"

#include <map>

std::string plot::StableSvg(const std::string& svg) {
  static const std::string word = "surface";
  std::map<std::string, std::string> numbers;
  std::string out;
  std::size_t plain = 0;
  for (std::size_t at = svg.find(word); at != svg.npos; at = svg.find(word, at)) {
    const bool isId = at > 0 && (svg[at - 1] == '"' || svg[at - 1] == '#');
    at += word.size();
    const std::size_t end = svg.find_first_not_of("0123456789", at);
    if (!isId || end == at || end == svg.npos) continue;
    const std::string old = svg.substr(at, end - at);
    const auto found = numbers.try_emplace(old, std::to_string(numbers.size() + 1)).first;
    out.append(svg, plain, at - plain).append(found->second);
    plain = at = end;
  }
  return out.append(svg, plain);
}
