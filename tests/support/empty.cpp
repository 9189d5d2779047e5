// Keeps the support library for Windows from being empty.
namespace support {
extern const int kNothing;
const int kNothing = 0;
}  // namespace support
