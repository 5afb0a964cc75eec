#include "subversion/svn/NodeInfo.h"

#include <svn_dirent_uri.h>
#include <svn_props.h>
#include <svn_time.h>

#include <algorithm>

#include "subversion/svn/LocalStatus.h"
#include "subversion/svn/ProviderContext.h"
#include "subversion/svn/Repository.h"
#include "subversion/svn/SvnStrings.h"
#include "system/System.h"

namespace kestrel::svnscc {
namespace {

constexpr svn_opt_revision_t kUnspecified{};

std::string TextOf(const char* text) { return text != nullptr ? text : ""; }

bool HoldsNul(const std::string& bytes) { return bytes.find('\0') != std::string::npos; }

bool HasBinaryType(apr_hash_t* properties) {
  const auto* type =
      static_cast<const svn_string_t*>(apr_hash_get(properties, SVN_PROP_MIME_TYPE, APR_HASH_KEY_STRING));
  return type != nullptr && svn_mime_type_is_binary(type->data);
}

struct InfoReceiver {
  NodeInfo facts;
  std::exception_ptr exception;
};

svn_error_t* OnInfo(void* baton, const char*, const svn_client_info2_t* info, apr_pool_t* pool) noexcept {
  auto& receiver = *static_cast<InfoReceiver*>(baton);
  return RunInCallback(receiver.exception, [&] {
    NodeInfo& facts = receiver.facts;
    facts.Url = info->URL;
    facts.Path = ToProjectName(svn_uri_skip_ancestor(info->repos_root_URL, info->URL, pool));
    facts.IsFolder = info->kind == svn_node_dir;
    facts.Revision = info->rev;
    facts.ChangedRevision = info->last_changed_rev;
    facts.ChangedAt = info->last_changed_date;
    facts.ChangedBy = TextOf(info->last_changed_author);
    facts.Lock = ToLockInfo(info->lock);
  });
}

struct PropertyReceiver {
  NamedTexts list;
  std::exception_ptr exception;
};

svn_error_t* OnProperties(void* baton, const char*, apr_hash_t* properties, apr_array_header_t*,
                          apr_pool_t* pool) noexcept {
  auto& receiver = *static_cast<PropertyReceiver*>(baton);
  return RunInCallback(receiver.exception, [&] {
    for (apr_hash_index_t* i = apr_hash_first(pool, properties); i != nullptr; i = apr_hash_next(i)) {
      const auto* value = static_cast<const svn_string_t*>(apr_hash_this_val(i));
      receiver.list.emplace_back(static_cast<const char*>(apr_hash_this_key(i)),
                                 std::string(value->data, value->len));
    }
  });
}

NodeInfo FetchInfo(Client& client, const std::string& place, const svn_opt_revision_t& peg,
                   const svn_opt_revision_t& revision) {
  const Pool pool;
  InfoReceiver receiver;
  svn_error_t* error =
      svn_client_info4(place.c_str(), &peg, &revision, svn_depth_empty,
                       /*fetch_excluded*/ FALSE, /*fetch_actual_only*/ FALSE,
                       /*include_externals*/ FALSE, nullptr, OnInfo, &receiver, client.ClientContext(), pool);
  client.Run(error, receiver.exception);
  return receiver.facts;
}

}  // namespace

ControlledNode RequireControlled(ProviderContext& context, const char* name) {
  const std::string path = context.InsidePath(name);
  if (path.empty()) throw Failure(scc::SCC_E_FILENOTCONTROLLED, sOutsideProject);
  const LocalStatus local = ReadLocalStatus(context, path);
  if (local.IsControlled()) return {path, path};
  const Project& project = context.CurrentProject();
  const std::string url = UrlOf(project.Url, svn_dirent_skip_ancestor(project.Folder.c_str(), path.c_str()));
  if (local.State == LocalState::Added || KindOf(context.Svn(), url) == svn_node_none)
    throw Failure(scc::SCC_E_FILENOTCONTROLLED,
                  Format(sFileFailed.Text, {context.Label(path), sNotControlled.Text}));
  return {path, url};
}

void RequireSameName(ProviderContext& context, const ControlledNode& node, svn_revnum_t revision) {
  const std::string then = FetchNodeInfo(context.Svn(), node.Place, Numbered(revision)).Url;
  const std::string now = node.IsLocal() ? LocalNodeInfo(context.Svn(), node.Path).Url : node.Place;
  if (then != now)
    throw Failure(scc::SCC_E_OPNOTPERFORMED,
                  Format(sOtherNameThen.Text, {static_cast<long long>(revision), ReadableUrl(then)}));
}

Contents FetchContents(Client& client, const std::string& place, const svn_opt_revision_t& revision) {
  const Pool pool;
  svn_stringbuf_t* buffer = svn_stringbuf_create_empty(pool);
  apr_hash_t* properties = nullptr;
  client.Run(svn_client_cat3(&properties, svn_stream_from_stringbuf(buffer, pool), place.c_str(),
                             &kUnspecified, &revision, /*expand_keywords*/ TRUE, client.ClientContext(), pool,
                             pool));
  Contents contents{std::string(buffer->data, buffer->len), false};
  contents.IsBinary = HasBinaryType(properties) || HoldsNul(contents.Bytes);
  return contents;
}

Contents ReadLocalContents(const std::string& path) {
  Contents contents{ReadWholeFile(path), false};
  contents.IsBinary = HoldsNul(contents.Bytes);
  return contents;
}

NodeInfo FetchNodeInfo(Client& client, const std::string& place, const svn_opt_revision_t& revision) {
  return FetchInfo(client, place, kUnspecified, revision);
}

// With neither revision given, libsvn reads the working copy only.
NodeInfo LocalNodeInfo(Client& client, const std::string& path) {
  return FetchInfo(client, path, kUnspecified, kUnspecified);
}

NamedTexts FetchProperties(Client& client, const std::string& place, const svn_opt_revision_t& revision) {
  const Pool pool;
  PropertyReceiver receiver;
  svn_error_t* error = svn_client_proplist4(place.c_str(), &kUnspecified, &revision, svn_depth_empty, nullptr,
                                            /*get_target_inherited_props*/ FALSE, OnProperties, &receiver,
                                            client.ClientContext(), pool);
  client.Run(error, receiver.exception);
  std::sort(receiver.list.begin(), receiver.list.end());
  return receiver.list;
}

LockInfo ToLockInfo(const svn_lock_t* lock) {
  if (lock == nullptr) return {};
  return {TextOf(lock->owner), TextOf(lock->comment), lock->creation_date};
}

std::string LocalTime(apr_time_t when) {
  if (when == 0) return {};
  apr_time_exp_t parts{};
  apr_time_exp_lt(&parts, when);
  char text[32];
  apr_size_t size = 0;
  apr_strftime(text, &size, sizeof text, "%Y-%m-%d %H:%M:%S", &parts);
  return {text, size};
}

}  // namespace kestrel::svnscc
