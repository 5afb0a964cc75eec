#include "subversion/svn/CommonLines.h"

#include <svn_diff.h>

#include <string>

#include "subversion/svn/SvnHandles.h"

namespace kestrel::svnscc {
namespace {

std::string TextOf(const LineIds& lines) {
  std::string text;
  for (const int line : lines) text += std::to_string(line) + '\n';
  return text;
}

struct MatchList {
  LineMatches Matches;
  std::exception_ptr Exception;
};

svn_error_t* OnCommon(void* baton, apr_off_t left, apr_off_t count, apr_off_t right, apr_off_t, apr_off_t,
                      apr_off_t) noexcept {
  auto& list = *static_cast<MatchList*>(baton);
  return RunInCallback(list.Exception, [&] {
    for (apr_off_t i = 0; i < count; ++i)
      list.Matches.emplace_back(static_cast<int>(left + i), static_cast<int>(right + i));
  });
}

svn_error_t* OnDifference(void*, apr_off_t, apr_off_t, apr_off_t, apr_off_t, apr_off_t, apr_off_t) noexcept {
  return SVN_NO_ERROR;
}

}  // namespace

LineMatches MatchCommonLines(const LineIds& left, const LineIds& right) {
  const std::string leftText = TextOf(left);
  const std::string rightText = TextOf(right);
  const svn_string_t a{leftText.data(), leftText.size()};
  const svn_string_t b{rightText.data(), rightText.size()};
  const Pool pool;
  svn_diff_t* diff = nullptr;
  Check(svn_diff_mem_string_diff(&diff, &a, &b, svn_diff_file_options_create(pool), pool));
  svn_diff_output_fns_t functions{};
  functions.output_common = OnCommon;
  functions.output_diff_modified = OnDifference;
  MatchList list;
  svn_error_t* error = svn_diff_output2(diff, &list, &functions, nullptr, nullptr);
  Check(error, list.Exception);
  return std::move(list.Matches);
}

}  // namespace kestrel::svnscc
