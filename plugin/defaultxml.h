// SPDX-License-Identifier: BSD-3-Clause
#pragma once

// The default XML of the controls: what a control starts with when it is dropped from the widget box.

/// A widget with a dynamic, empty `id` property; the arguments are the class and the object name.
inline constexpr char standardXml[] = R"(<widget class="%1" name="%2">
 <property name="id" stdset="0">
  <number></number>
 </property>
</widget>
)";

/// The same for the controls whose text has always ended without a newline.
inline constexpr char standardXmlWithoutFinalNewline[] = R"(<widget class="%1" name="%2">
 <property name="id" stdset="0">
  <number></number>
 </property>
</widget>)";

inline constexpr char optionCheckBoxXml[] = R"(<widget class="Vexa::OptionCheckBox" name="OptionCheckBox">
 <property name="id" stdset="0">
  <number></number>
 </property>
 <item>
  <property name="data">
   <string notr="true">1</string>
  </property>
  <property name="text">
   <string notr="false">Yes</string>
  </property>
 </item>
 <item>
  <property name="data">
   <string notr="true">0</string>
  </property>
  <property name="text">
   <string notr="false">No</string>
  </property>
 </item>
</widget>
)";

inline constexpr char drawbackBoxGroupXml[] = R"(<ui language="c++">
 <widget class="Vexa::DrawbackBoxGroup" name="drawbackBoxGroup">
  <widget class="QWidget" name="page" />
 </widget>
 <customwidgets>
  <customwidget>
   <class>Vexa::DrawbackBoxGroup</class>
   <extends>QWidget</extends>
   <addpagemethod>addPage</addpagemethod>
  </customwidget>
 </customwidgets>
</ui>
)";

inline constexpr char formXml[] = R"(<widget class="Vexa::Form" name="form">
 <property name="geometry">
  <rect>
   <x>0</x>
   <y>0</y>
   <width>275</width>
   <height>360</height>
  </rect>
 </property>
 <property name="mode">
  <enum>Vexa::Form::Dockable</enum>
 </property>
 <property name="functionName">
  <string notr="true"/>
 </property>
 <layout class="QVBoxLayout" name="verticalLayout">
  <property name="margin">
   <number>2</number>
  </property>
  <item>
   <widget class="Vexa::DrawbackBoxGroup" name="drawbackBoxGroup">
    <property name="currentIndex">
     <number>0</number>
    </property>
    <widget class="QWidget" name="page_0">
     <property name="windowTitle">
      <string>Required</string>
     </property>
    </widget>
    <widget class="QWidget" name="page_1">
     <property name="windowTitle">
      <string>Optional</string>
     </property>
    </widget>
    <widget class="QWidget" name="page_2">
     <property name="windowTitle">
      <string>Advanced</string>
     </property>
    </widget>
   </widget>
  </item>
 </layout>
</widget>
)";

inline constexpr char lineXml[] = R"(<widget class="Vexa::Line" name="line">
</widget>
)";

inline constexpr char paneXml[] = R"(<widget class="Vexa::Pane" name="pane">
 <property name="geometry">
  <rect>
   <x>0</x>
   <y>0</y>
   <width>150</width>
   <height>100</height>
  </rect>
 </property>
 <property name="title">
  <string>untitled</string>
 </property>
 <property name="id" stdset="0">
  <number></number>
 </property>
</widget>
)";

inline constexpr char matrixPopButtonsXml[]
    = R"(<widget class="Vexa::MatrixPopButtons" name="matrixPopButtons">
 <property name="id" stdset="0">
  <number></number>
 </property>
 <property name="textList">
  <stringlist>
   <string>item0</string>
   <string>item1</string>
   <string>item2</string>
   <string>item3</string>
  </stringlist>
 </property>
</widget>
)";
