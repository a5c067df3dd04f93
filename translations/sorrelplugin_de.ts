<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CheckComboEditor</name>
    <message>
        <source>New Item</source>
        <translation>Neues Element</translation>
    </message>
    <message>
        <source>Edit Checkable ComboBox</source>
        <translation>Kombinationsfeld mit Häkchen bearbeiten</translation>
    </message>
</context>
<context>
    <name>CheckComboTaskMenu</name>
    <message>
        <source>Edit Items</source>
        <translation>Elemente bearbeiten</translation>
    </message>
</context>
<context>
    <name>ComboBoxEditor</name>
    <message>
        <source>New Item</source>
        <translation>Neues Element</translation>
    </message>
    <message>
        <source>Edit ComboBox</source>
        <translation>Kombinationsfeld bearbeiten</translation>
    </message>
</context>
<context>
    <name>ComboBoxTaskMenu</name>
    <message>
        <source>Edit Items</source>
        <translation>Elemente bearbeiten</translation>
    </message>
</context>
<context>
    <name>Command</name>
    <message>
        <source>Change OptionRadios Contents</source>
        <comment>drawback boxes</comment>
        <translation>Klappbereiche ändern</translation>
    </message>
    <message>
        <source>Change OptionButtons Contents</source>
        <translation>Inhalt der Optionsschaltflächen ändern</translation>
    </message>
    <message>
        <source>Change OptionRadios Contents</source>
        <translation>Inhalt der Optionsfelder ändern</translation>
    </message>
    <message>
        <source>Change MatrixButtons Contents</source>
        <translation>Inhalt der Schaltflächenmatrix ändern</translation>
    </message>
    <message>
        <source>Change MatrixPopButtons Contents</source>
        <translation>Inhalt der Aufklappschaltflächen ändern</translation>
    </message>
</context>
<context>
    <name>DrawbackBoxEditor</name>
    <message>
        <source>New Item</source>
        <translation>Neues Element</translation>
    </message>
    <message>
        <source>Edit DrawbackBoxGroup</source>
        <translation>Gruppe von Klappbereichen bearbeiten</translation>
    </message>
</context>
<context>
    <name>DrawbackBoxTaskMenu</name>
    <message>
        <source>Edit DrawbackBox</source>
        <translation>Klappbereiche bearbeiten</translation>
    </message>
</context>
<context>
    <name>ItemPropertyBrowser</name>
    <message>
        <source>XX Icon Selected off</source>
        <translation>XX Nicht verfügbar, aus</translation>
    </message>
</context>
<context>
    <name>MatrixButtonsDialog</name>
    <message>
        <source>Edit Matrix buttons</source>
        <translation>Schaltflächenmatrix bearbeiten</translation>
    </message>
</context>
<context>
    <name>MatrixButtonsEditor</name>
    <message>
        <source>Properties &amp;&gt;&gt;</source>
        <translation>Eigenschaften &amp;&gt;&gt;</translation>
    </message>
    <message>
        <source>Properties &amp;&lt;&lt;</source>
        <translation>Eigenschaften &amp;&lt;&lt;</translation>
    </message>
</context>
<context>
    <name>MatrixEditor</name>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy Whole Grid</source>
        <translation>Ganze Matrix kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Paste Into</source>
        <translation>Einfügen in</translation>
    </message>
    <message>
        <source>Clear Cell</source>
        <translation>Zelle leeren</translation>
    </message>
</context>
<context>
    <name>MatrixPopButtonsDialog</name>
    <message>
        <source>Edit Matrix PopButtons</source>
        <translation>Matrix der Aufklappschaltflächen bearbeiten</translation>
    </message>
</context>
<context>
    <name>MatrixPopButtonsEditor</name>
    <message>
        <source>Properties &amp;&gt;&gt;</source>
        <translation>Eigenschaften &amp;&gt;&gt;</translation>
    </message>
    <message>
        <source>Properties &amp;&lt;&lt;</source>
        <translation>Eigenschaften &amp;&lt;&lt;</translation>
    </message>
</context>
<context>
    <name>MatrixPopButtonsTaskMenu</name>
    <message>
        <source>Edit Buttons</source>
        <translation>Schaltflächen bearbeiten</translation>
    </message>
</context>
<context>
    <name>MatrixPushButtonsEditor</name>
    <message>
        <source>MatrixPushButtons Editor</source>
        <translation>Schaltflächenmatrix</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Elemente</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>PushButton</source>
        <translation>Schaltfläche</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>MatrixPushButtonsTaskMenu</name>
    <message>
        <source>Edit Buttons</source>
        <translation>Schaltflächen bearbeiten</translation>
    </message>
</context>
<context>
    <name>OptionButtonsTaskMenu</name>
    <message>
        <source>Edit Buttons</source>
        <translation>Schaltflächen bearbeiten</translation>
    </message>
</context>
<context>
    <name>OptionComboEditor</name>
    <message>
        <source>New Item</source>
        <translation>Neues Element</translation>
    </message>
    <message>
        <source>Edit Option ComboBox</source>
        <translation>Optionskombinationsfeld bearbeiten</translation>
    </message>
</context>
<context>
    <name>OptionComboTaskMenu</name>
    <message>
        <source>Edit Items</source>
        <translation>Elemente bearbeiten</translation>
    </message>
</context>
<context>
    <name>OptionRadiosTaskMenu</name>
    <message>
        <source>Edit Buttons</source>
        <translation>Schaltflächen bearbeiten</translation>
    </message>
</context>
<context>
    <name>OptionsEditor</name>
    <message>
        <source>New Item</source>
        <translation>Neues Element</translation>
    </message>
    <message>
        <source>Edit OptionButtons</source>
        <translation>Optionsschaltflächen bearbeiten</translation>
    </message>
    <message>
        <source>Edit OptionRadios</source>
        <translation>Optionsfelder bearbeiten</translation>
    </message>
</context>
<context>
    <name>QtBoolPropertyManager</name>
    <message>
        <source>True</source>
        <translation>Wahr</translation>
    </message>
    <message>
        <source>False</source>
        <translation>Falsch</translation>
    </message>
</context>
<context>
    <name>QtSizePolicyPropertyManager</name>
    <message>
        <source>Horizontal Policy</source>
        <translation>Horizontale Richtlinie</translation>
    </message>
    <message>
        <source>Vertical Policy</source>
        <translation>Vertikale Richtlinie</translation>
    </message>
    <message>
        <source>Horizontal Stretch</source>
        <translation>Horizontaler Dehnungsfaktor</translation>
    </message>
    <message>
        <source>Vertical Stretch</source>
        <translation>Vertikaler Dehnungsfaktor</translation>
    </message>
    <message>
        <source>&lt;Invalid&gt;</source>
        <translation>&lt;Ungültig&gt;</translation>
    </message>
    <message>
        <source>[%1, %2, %3, %4]</source>
        <translation>[%1, %2, %3, %4]</translation>
    </message>
</context>
<context>
    <name>QtTreePropertyBrowser</name>
    <message>
        <source>Property</source>
        <translation>Eigenschaft</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
</context>
<context>
    <name>qdesigner_internal::AbstractItemEditor</name>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederherstellen</translation>
    </message>
</context>
<context>
    <name>qdesigner_internal::DesignerPropertyManager</name>
    <message>
        <source>Normal Off</source>
        <translation>Normal, aus</translation>
    </message>
    <message>
        <source>Normal On</source>
        <translation>Normal, ein</translation>
    </message>
    <message>
        <source>Disabled Off</source>
        <translation>Nicht verfügbar, aus</translation>
    </message>
    <message>
        <source>Disabled On</source>
        <translation>Nicht verfügbar, ein</translation>
    </message>
    <message>
        <source>Active Off</source>
        <translation>Aktiv, aus</translation>
    </message>
    <message>
        <source>Active On</source>
        <translation>Aktiv, ein</translation>
    </message>
    <message>
        <source>Selected Off</source>
        <translation>Ausgewählt, aus</translation>
    </message>
    <message>
        <source>Selected On</source>
        <translation>Ausgewählt, ein</translation>
    </message>
    <message>
        <source>disambiguation</source>
        <translation>Unterscheidung</translation>
    </message>
    <message>
        <source>comment</source>
        <translation>Kommentar</translation>
    </message>
    <message>
        <source>id</source>
        <translation>Kennung</translation>
    </message>
    <message>
        <source>translatable</source>
        <translation>übersetzbar</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Thema</translation>
    </message>
    <message>
        <source>[Theme] %1</source>
        <translation>[Thema] %1</translation>
    </message>
</context>
<context>
    <name>qdesigner_internal::FindLine</name>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
</context>
<context>
    <name>qdesigner_internal::IconThemeDialog</name>
    <message>
        <source>Set Icon From Theme</source>
        <translation>Symbol aus dem Thema setzen</translation>
    </message>
    <message>
        <source>Input icon name from the current theme:</source>
        <translation>Name des Symbols im aktuellen Thema:</translation>
    </message>
</context>
<context>
    <name>qdesigner_internal::ItemListEditor</name>
    <message>
        <source>Items List</source>
        <translation>Liste der Elemente</translation>
    </message>
    <message>
        <source>New Item</source>
        <translation>Neues Element</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>Delete Item</source>
        <translation>Element löschen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Move Item Up</source>
        <translation>Element nach oben</translation>
    </message>
    <message>
        <source>U</source>
        <translation>H</translation>
    </message>
    <message>
        <source>Move Item Down</source>
        <translation>Element nach unten</translation>
    </message>
    <message>
        <source>D</source>
        <translation>R</translation>
    </message>
    <message>
        <source>Properties &amp;&gt;&gt;</source>
        <translation>Eigenschaften &amp;&gt;&gt;</translation>
    </message>
    <message>
        <source>Properties &amp;&lt;&lt;</source>
        <translation>Eigenschaften &amp;&lt;&lt;</translation>
    </message>
    <message>
        <source>Rename Item</source>
        <translation>Element umbenennen</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Sort by Text</source>
        <translation>Nach Text sortieren</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 Elemente</translation>
    </message>
    <message>
        <source>Paste Over</source>
        <translation>Darüber einfügen</translation>
    </message>
</context>
<context>
    <name>qdesigner_internal::PixmapEditor</name>
    <message>
        <source>Copy Path</source>
        <translation>Pfad kopieren</translation>
    </message>
    <message>
        <source>Paste Path</source>
        <translation>Pfad einfügen</translation>
    </message>
    <message>
        <source>Choose Resource...</source>
        <translation>Ressource wählen ...</translation>
    </message>
    <message>
        <source>Choose File...</source>
        <translation>Datei wählen ...</translation>
    </message>
    <message>
        <source>Set Icon From Theme...</source>
        <translation>Symbol aus dem Thema setzen ...</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>[Theme] %1</source>
        <translation>[Thema] %1</translation>
    </message>
</context>
<context>
    <name>qdesigner_internal::PropertyTreeModel</name>
    <message>
        <source>This control does not keep it.</source>
        <translation>Dieses Steuerelement behält das nicht.</translation>
    </message>
</context>
<context>
    <name>qdesigner_internal::TextEditor</name>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
</context>
</TS>
