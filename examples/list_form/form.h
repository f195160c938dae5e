// The form: search boxes above the columns of a list, its filters, and a line that tells what it shows.
#pragma once

#include <array>
#include <vector>

#include "controls.h"
#include "filter_file.h"
#include "order_list.h"

namespace list_form {

class Form {
 public:
  Form(OrderList& list, FilterFile& filters);
  ~Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  // Until the window is closed.
  void run();

 private:
  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM word, LPARAM more);
  LRESULT handle(UINT message, WPARAM word, LPARAM more);
  void make_controls();
  void make_columns();

  void command(int id, int code);
  LRESULT notified(NMHDR& told);
  LRESULT box_colour(HDC canvas, HWND box);

  void search(std::size_t column);
  void pick_filter();
  void keep_filter();
  void set_refused(std::size_t column, bool refused);
  std::size_t focused_box() const;

  void show();
  void show_filters();
  void show_searches();
  void show_sorting();
  void say(const std::wstring& text);
  void lay_out();
  void lay_out_boxes();

  OrderList& list_;
  FilterFile& filters_;
  HBRUSH refused_brush_;
  std::array<bool, kColumns.size()> refused_{};
  std::array<HWND, kColumns.size()> boxes_{};
  HWND window_ = nullptr, filter_box_ = nullptr, save_ = nullptr, clear_ = nullptr, rows_ = nullptr, line_ = nullptr;
};

}  // namespace list_form
