#include "core/util/PropertyList.h"

#include <gtest/gtest.h>

TEST(PropertyList, ReadsEveryKindOfValue)
{
    const QVariant value = readPropertyList(R"(<?xml version="1.0" encoding="UTF-8"?>
        <plist version="1.0"><dict>
            <key>text</key><string>万 &amp; 千</string>
            <key>whole</key><integer>-12</integer>
            <key>part</key><real>0.5</real>
            <key>yes</key><true/>
            <key>no</key><false></false>
            <key>rows</key><array><dict><key>a</key><string/></dict><array/></array>
        </dict></plist>)");
    const QVariantMap expected{
        {"text", "万 & 千"}, {"whole", -12LL}, {"part", 0.5},
        {"yes", true},       {"no", false},    {"rows", QVariantList{QVariantMap{{"a", ""}}, QVariantList{}}},
    };
    EXPECT_EQ(value.toMap(), expected);
}

TEST(PropertyList, WhatIsNoPropertyListIsInvalid)
{
    for (const char *xml :
         {"", "nonsense", "<html/>", "<plist/>", "<plist><dict><string>x</string></dict></plist>",
          "<plist><dict><key>a</key></dict></plist>", "<plist><dict><key>a</key>", "<plist><array>"})
        EXPECT_FALSE(readPropertyList(xml).isValid()) << xml;
}
