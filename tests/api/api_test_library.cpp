// A small library for the API command's tests: functions with more
// arguments than travel in registers, texts written in place, and words
// that must arrive whole.
#include <cctype>
#include <cstddef>
#include <cstring>

extern "C" {

int tamrix_seven() { return 7; }

// Upper-cases the text in place and gives its length.
int tamrix_upper(char* text) {
  int n = 0;
  for (; text[n] != '\0'; ++n) text[n] = static_cast<char>(std::toupper(static_cast<unsigned char>(text[n])));
  return n;
}

// Eight numbers: the last two come on the stack.
long tamrix_sum8(long a, long b, long c, long d, long e, long f, long g, long h) {
  return a + 10 * b + 100 * c + 1000 * d + 10000 * e + 100000 * f + 1000000 * g + 10000000 * h;
}

// The lengths of two texts as one number.
int tamrix_lengths(const char* a, const char* b) { return static_cast<int>(std::strlen(a) * 100 + std::strlen(b)); }

// 1 for a word that is not zero.
int tamrix_nonzero(long word) { return word != 0; }

// Writes into the first ten texts and tells whether the eleventh is null.
int tamrix_eleven(char* a1, char* a2, char* a3, char* a4, char* a5, char* a6, char* a7, char* a8, char* a9,
                  char* a10, char* a11) {
  char* texts[] = {a1, a2, a3, a4, a5, a6, a7, a8, a9, a10};
  for (int i = 0; i < 10; ++i) texts[i][0] = static_cast<char>('0' + i);
  return a11 == nullptr;
}

// -1, so that a negative result is read as signed.
int tamrix_minus_one() { return -1; }

}  // extern "C"
