#include "page.h"

#include <cctype>
#include <fstream>
#include <system_error>

#include "png_file.h"

namespace demo {
namespace {

constexpr const char* style = R"(
:root { color-scheme: light dark; --paper: #f4f2ee; --card: #fff; --ink: #23262b; --soft: #6b7079; --line: #e2dfd8;
        --code: #faf9f6; --accent: #b4481e; }
@media (prefers-color-scheme: dark) {
  :root { --paper: #17191c; --card: #202327; --ink: #e6e4df; --soft: #9a9fa8; --line: #32363c; --code: #1a1d20;
          --accent: #f0935f; }
}
* { box-sizing: border-box; }
body { margin: 0 auto; padding: 2.5rem 1.5rem 4rem; max-width: 1360px; background: var(--paper); color: var(--ink);
       font: 16px/1.5 system-ui, "DejaVu Sans", sans-serif; }
h1 { margin: 0; font-size: 2.2rem; letter-spacing: -0.02em; }
h2 { margin: 3rem 0 0.2rem; font-size: 1.5rem; border-top: 1px solid var(--line); padding-top: 2rem; }
h3 { margin: 0; font-size: 1.05rem; }
p { margin: 0.3rem 0 0; max-width: 75ch; }
h2 + p, .lead { color: var(--soft); }
a { color: var(--accent); text-decoration: none; }
nav { display: flex; flex-wrap: wrap; gap: 0.2rem 1.4rem; margin-top: 1.2rem; }
.grid { display: grid; grid-template-columns: repeat(auto-fill, minmax(min(100%, 400px), 1fr)); gap: 1.4rem;
        margin-top: 1.2rem; grid-auto-flow: dense; }
figure { margin: 0; background: var(--card); border: 1px solid var(--line); border-radius: 10px; overflow: hidden;
         display: flex; flex-direction: column; }
figure.wide { grid-column: span 2; }
@media (max-width: 900px) { figure.wide { grid-column: auto; } }
@media (min-width: 900px) {
  section:first-of-type figure { flex-direction: row; grid-column: 1 / -1; }
  section:first-of-type .picture { border-bottom: 0; border-right: 1px solid var(--line); }
}
.picture { padding: 12px; background: var(--code); border-bottom: 1px solid var(--line); }
.picture img { display: block; margin: auto; max-width: 100%; }
.alpha img { background: repeating-conic-gradient(#bbb 0 25%, #eee 0 50%) 0 0 / 20px 20px; }
figcaption { padding: 0.9rem 1rem 1rem; flex: 1; display: flex; flex-direction: column; }
pre { margin: 0.7rem 0 0; padding: 0.6rem 0.8rem; background: var(--code); border: 1px solid var(--line);
      border-radius: 6px; font: 12.5px/1.45 ui-monospace, "DejaVu Sans Mono", monospace; white-space: pre-wrap;
      overflow-wrap: anywhere; }
pre b { color: var(--accent); font-weight: 600; }
pre div { padding-left: 2em; text-indent: -2em; }
.table { overflow-x: auto; margin-top: 1.2rem; }
table { border-collapse: collapse; background: var(--card); border: 1px solid var(--line); }
th, td { padding: 0.35rem 0.9rem; text-align: right; border-top: 1px solid var(--line); white-space: nowrap; }
th { color: var(--soft); font-weight: 600; font-size: 0.9rem; }
th:first-child, td:first-child, th:last-child, td:last-child { text-align: left; }
td:last-child { white-space: normal; }
td:first-child { font: 13px ui-monospace, "DejaVu Sans Mono", monospace; }
.bar { display: flex; width: 320px; height: 14px; border-radius: 3px; overflow: hidden; }
.bar i { background: var(--accent); } .bar s { flex: 1; background: var(--line); }
)";

/// The calls as code, the library's functions emphasised. A line that is too long wraps behind its beginning.
std::string codeOf(const Call& call) {
  std::istringstream lines(call.text);
  std::string html;
  for (std::string line; std::getline(lines, line);) {
    const size_t name = line.find("vemi");
    const size_t end = name == std::string::npos ? name : line.find_first_of("( ,;)", name);
    if (end == std::string::npos || line[end] != '(') {  // no call in this line
      html += "<div>" + escaped(line) + "</div>";
      continue;
    }
    html += "<div>" + escaped(line.substr(0, name)) + "<b>" + escaped(line.substr(name, end - name)) + "</b>" +
            escaped(line.substr(end)) + ";</div>";
  }
  if (call.status != vemiOk) html += "<div>// status " + std::to_string(call.status) + "</div>";
  return html;
}

/// "07-mean-of-two-pictures.png"
std::string fileNameFor(int number, const std::string& title) {
  std::string name(number < 10 ? 1 : 0, '0');
  name += std::to_string(number);
  bool gap = true;
  for (const char c : title) {
    if (!std::isalnum(static_cast<unsigned char>(c))) {
      gap = true;
      continue;
    }
    if (gap) name += '-';
    gap = false;
    name += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  }
  return name + ".png";
}

}  // namespace

std::string escaped(const std::string& text) {
  std::string html;
  for (const char c : text) {
    switch (c) {
      case '&':
        html += "&amp;";
        break;
      case '<':
        html += "&lt;";
        break;
      case '>':
        html += "&gt;";
        break;
      case '"':
        html += "&quot;";
        break;
      default:
        html += c;
    }
  }
  return html;
}

Page::Page(std::filesystem::path folder) : folder_(std::move(folder)) {
  std::error_code error;
  std::filesystem::create_directories(folder_, error);
  if (error) throw Failure("cannot make the folder " + folder_.string() + ": " + error.message());
}

void Page::lead(const std::string& text) { lead_ = text; }

void Page::section(const std::string& title, const std::string& text) {
  if (inSection_) body_ << "</div></section>\n";
  inSection_ = true;
  sections_++;
  contents_ << "<a href=\"#" << sections_ << "\">" << escaped(title) << "</a>\n";
  body_ << "<section id=\"" << sections_ << "\"><h2>" << escaped(title) << "</h2><p>" << escaped(text)
        << "</p>\n<div class=\"grid\">\n";
}

void Page::show(const Image8u& picture, const std::string& title, const std::string& text,
                std::initializer_list<Call> calls) {
  const std::string file = fileNameFor(++pictures_, title);
  writePng(picture, (folder_ / file).string());
  const bool wide = picture.width() > 600;
  body_ << "<figure" << (wide ? " class=\"wide\"" : "") << "><div class=\"picture"
        << (picture.channels() == 4 ? " alpha" : "") << "\"><img src=\"" << file << "\" alt=\"" << escaped(title)
        << "\" width=\"" << picture.width() << "\" loading=\"lazy\"></div>\n<figcaption><h3>" << escaped(title)
        << "</h3><p>" << escaped(text) << "</p>";
  if (calls.size() > 0) {
    body_ << "<pre>";
    for (const Call& call : calls) body_ << codeOf(call);
    body_ << "</pre>";
  }
  body_ << "</figcaption></figure>\n";
}

void Page::table(const std::vector<std::string>& header, const std::vector<std::vector<std::string>>& rows) {
  body_ << "</div><div class=\"table\"><table><tr>";
  for (const std::string& title : header) body_ << "<th>" << escaped(title) << "</th>";
  body_ << "</tr>\n";
  for (const std::vector<std::string>& row : rows) {
    body_ << "<tr>";
    for (const std::string& cell : row) body_ << "<td>" << cell << "</td>";
    body_ << "</tr>\n";
  }
  body_ << "</table></div>\n<div class=\"grid\">\n";
}

std::filesystem::path Page::write() {
  if (inSection_) body_ << "</div></section>\n";
  inSection_ = false;
  const std::filesystem::path path = folder_ / "index.html";
  std::ofstream html(path);
  html << "<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"utf-8\">\n"
          "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>Vemi, the demo</title>\n"
          "<style>"
       << style << "</style></head>\n<body>\n<h1>Vemi</h1>\n<p class=\"lead\">" << escaped(lead_) << "</p>\n<nav>"
       << contents_.str() << "</nav>\n"
       << body_.str() << "</body></html>\n";
  html.close();
  if (!html) throw Failure("cannot write " + path.string());
  return path;
}

}  // namespace demo
