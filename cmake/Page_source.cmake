# cmake -DPAGE=... -DSOURCE=... -P Page_source.cmake: writes a page as a C++ source file.
cmake_minimum_required(VERSION 3.25)
file(READ ${PAGE} page)
# A compiler may take no more than 65,536 characters at once.
set(literals)
string(LENGTH "${page}" length)
set(from 0)
while(from LESS length)
  string(SUBSTRING "${page}" ${from} 16000 part)
  string(APPEND literals "    R\"vorlane_page(${part})vorlane_page\"\n")
  math(EXPR from "${from} + 16000")
endwhile()
file(WRITE ${SOURCE} "#include \"report/Page_template.h\"

#pragma GCC diagnostic ignored \"-Woverlength-strings\"

namespace vorlane::report {

std::string_view Page_template() {
  return
${literals}      ;
}

}  // namespace vorlane::report
")
