// Image memory, and what can be said with a pointer, a step and a size.

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "demo.h"

namespace demo {
namespace {

/// One line of the table: an image 75 pixels wide from this function.
template <class T>
std::vector<std::string> rowOf(const char* name, T* (*allocate)(VemiSize, int*), int channels) {
  constexpr VemiSize size = {75, 50};
  const int used = size.width * channels * static_cast<int>(sizeof(T));
  int step = 0;
  T* image = allocate(size, &step);
  if (!image) throw Failure(std::string("no memory from ") + name);
  const bool aligned = reinterpret_cast<uintptr_t>(image) % 32 == 0 && step % 32 == 0;
  vemiFree(image);
  const std::string bar =
      "<div class=\"bar\"><i style=\"width:" + std::to_string(100.0 * used / step) + "%\"></i><s></s></div>";
  return {name, std::to_string(used), std::to_string(step), std::to_string(step - used), aligned ? "yes" : "no", bar};
}

void showSteps(Page& page) {
  page.table({"75 pixels wide, from", "bytes in a row", "step", "unused", "rows on 32 bytes", "a row"},
             {rowOf("vemiMalloc_8u_C1", vemiMalloc_8u_C1, 1), rowOf("vemiMalloc_8u_C3", vemiMalloc_8u_C3, 3),
              rowOf("vemiMalloc_8u_C4", vemiMalloc_8u_C4, 4), rowOf("vemiMalloc_8u_P3, a plane", vemiMalloc_8u_P3, 1),
              rowOf("vemiMalloc_16s_C3", vemiMalloc_16s_C3, 3), rowOf("vemiMalloc_32f_C1", vemiMalloc_32f_C1, 1),
              rowOf("vemiMalloc_32fc_C1", vemiMalloc_32fc_C1, 1)});
}

void showRegion(const Image8u& photo, Page& page) {
  const int x = photo.width() / 4, y = photo.height() / 4;
  const VemiSize part = {photo.width() / 2, photo.height() / 2};
  Image8u cut(part, 3);
  page.show(cut, "A region", "The same call with a pointer further in, the image's own step, and the region's size.",
            {CALL(vemiCopy_8u_C3R(photo.at(x, y), photo.step(), cut.data(), cut.step(), part))});
}

void showHalving(const Image8u& photo, Page& page) {
  const VemiSize low = {photo.width(), photo.height() / 2}, size = {low.width / 2, low.height};
  Image8u rows(low, 3), even(size, 3), odd(size, 3), half(size, 3);
  page.show(rows, "Twice the step: every second row",
            "The even rows are an image, the odd rows another one. This is the mean of both.",
            {CALL(vemiAdd_8u_C3RSfs(photo.at(0, 0), 2 * photo.step(), photo.at(0, 1), 2 * photo.step(), rows.data(),
                                    rows.step(), low, 1))});
  const Call evenColumns = CALL_EACH(for (int y = 0; y < size.height; y++),
                                     vemiCopy_8u_C3R(rows.at(0, y), 2 * 3, even.at(0, y), 3, {1, size.width}));
  const Call oddColumns = CALL_EACH(for (int y = 0; y < size.height; y++),
                                    vemiCopy_8u_C3R(rows.at(1, y), 2 * 3, odd.at(0, y), 3, {1, size.width}));
  page.show(
      half, "A step of two pixels: every second column",
      "A row is also an image one pixel wide. The mean of even and odd columns completes the half size.",
      {evenColumns, oddColumns,
       CALL(vemiAdd_8u_C3RSfs(even.data(), even.step(), odd.data(), odd.step(), half.data(), half.step(), size, 1))});
}

void showColumns(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  Image8u turned({size.height, size.width}, 3), mirrored(size, 3);
  const Call turn = CALL_EACH(for (int x = 0; x < size.width; x++),
                              vemiCopy_8u_C3R(photo.at(x, 0), photo.step(), turned.at(0, x), 3, {1, size.height}));
  page.show(turned, "Columns become rows",
            "A column is copied with the image's step on one side and a step of one pixel on the other.", {turn});
  const Call mirror = CALL_EACH(for (int x = 0; x < size.width; x++),
                                vemiCopy_8u_C3R(photo.at(x, 0), photo.step(), mirrored.at(size.width - 1 - x, 0),
                                                mirrored.step(), {1, size.height}));
  page.show(mirrored, "Columns in reverse order", "A region may be one pixel wide.", {mirror});
}

void showSlant(const Image8u& photo, Page& page) {
  const int height = std::min(photo.height(), photo.width() / 2);
  const VemiSize size = {photo.width() - height, height};
  Image8u slanted(size, 3);
  page.show(slanted, "A step of a row and a pixel", "Each row begins one pixel further right than the one above it.",
            {CALL(vemiCopy_8u_C3R(photo.data(), photo.step() + 3, slanted.data(), slanted.step(), size))});
}

}  // namespace

void demoMemory(const Demo& demo) {
  showSteps(demo.page);
  showRegion(demo.photo, demo.page);
  showHalving(demo.photo, demo.page);
  showColumns(demo.photo, demo.page);
  showSlant(demo.photo, demo.page);
}

}  // namespace demo
