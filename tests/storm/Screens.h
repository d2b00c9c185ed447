#pragma once

#include <QByteArray>
#include <QTemporaryDir>

// The name of an offscreen platform with screens of different scales side by side. The folder keeps
// their description and must outlive the application's start.
QByteArray PlatformOfScreens(const QTemporaryDir& folder);
