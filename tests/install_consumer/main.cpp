// A program built against the installed package, as an app would.
#include <QBComponentAPI/QBComponentAPI.hpp>

#include <iostream>

int main() {
  std::cout << qb::toJson(qb::JsonMap{{"a", 1}}) << "\n";
  return 0;
}
