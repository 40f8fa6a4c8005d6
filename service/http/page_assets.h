// The page's files, compiled into the program as a GResource.
#ifndef ZUNDE_SERVICE_HTTP_PAGE_ASSETS_H
#define ZUNDE_SERVICE_HTTP_PAGE_ASSETS_H

#include <string>

namespace zunde::service::http {

struct PageAsset {
  const char* path;         // as the browser asks for it
  const char* resource;     // its name in the GResource
  const char* contentType;
};

// The asset served at `path`; null when there is none.
const PageAsset* FindPageAsset(const std::string& path);

// Its text, with the page's token put in where it says @TOKEN@.
std::string PageAssetText(const PageAsset& asset, const std::string& token);

}  // namespace zunde::service::http

#endif
