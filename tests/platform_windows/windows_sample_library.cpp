// The library that the check loads. The names under which its calls are exported stand in the .def file.

extern "C" {

int sample_plain(int a, int b);
int sample_with_line(int a, int b);
int sample_without_line(int a);

int sample_plain(int a, int b) {
  return a + b;
}
int sample_with_line(int a, int b) {
  return a - b;
}
int sample_without_line(int a) {
  return a * 2;
}
}
