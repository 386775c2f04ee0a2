// A text that owns its characters, possibly null. It can be copied but not assigned.
#pragma once

class Texto {
 public:
  Texto() = default;              // null
  explicit Texto(const char* s);  // an owned copy; null stays null
  explicit Texto(int n);          // room for n characters, holding an empty text
  Texto(const Texto& otro);
  Texto& operator=(const Texto&) = delete;
  ~Texto();

  /// Replaces the text by a copy of `s`, which may be the present text or null, and returns the new array.
  char* setTexto(const char* s);

  /// Copies the text into `dst`, which must be large enough, and returns `dst`. A null text is copied as an
  /// empty one.
  char* getTexto(char* dst) const;

 private:
  char* texto = nullptr;
};
