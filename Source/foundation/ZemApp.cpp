#include "ZemApp.h"

#include "ZemDefaultHost.h"

namespace {

CZemApp*& installedApp() {
    static CZemApp* app = nullptr;
    return app;
}

}  // namespace

CZemApp* zemAppPtr() {
    CZemApp* app = installedApp();
    return app ? app : &CZemDefaultHost::instance();
}

CZemApp* zemAppSet(CZemApp* app) {
    CZemApp* before = installedApp();
    installedApp() = app;
    return before;
}
