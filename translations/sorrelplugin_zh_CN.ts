<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>CheckComboEditor</name>
    <message>
        <source>New Item</source>
        <translation>新建项</translation>
    </message>
    <message>
        <source>Edit Checkable ComboBox</source>
        <translation>编辑可勾选组合框</translation>
    </message>
</context>
<context>
    <name>CheckComboTaskMenu</name>
    <message>
        <source>Edit Items</source>
        <translation>编辑项</translation>
    </message>
</context>
<context>
    <name>ComboBoxEditor</name>
    <message>
        <source>New Item</source>
        <translation>新建项</translation>
    </message>
    <message>
        <source>Edit ComboBox</source>
        <translation>编辑组合框</translation>
    </message>
</context>
<context>
    <name>ComboBoxTaskMenu</name>
    <message>
        <source>Edit Items</source>
        <translation>编辑项</translation>
    </message>
</context>
<context>
    <name>Command</name>
    <message>
        <source>Change OptionRadios Contents</source>
        <comment>drawback boxes</comment>
        <translation>更改折叠框内容</translation>
    </message>
    <message>
        <source>Change OptionButtons Contents</source>
        <translation>更改选项按钮内容</translation>
    </message>
    <message>
        <source>Change OptionRadios Contents</source>
        <translation>更改选项单选按钮内容</translation>
    </message>
    <message>
        <source>Change MatrixButtons Contents</source>
        <translation>更改矩阵按钮内容</translation>
    </message>
    <message>
        <source>Change MatrixPopButtons Contents</source>
        <translation>更改矩阵弹出按钮内容</translation>
    </message>
</context>
<context>
    <name>DrawbackBoxEditor</name>
    <message>
        <source>New Item</source>
        <translation>新建项</translation>
    </message>
    <message>
        <source>Edit DrawbackBoxGroup</source>
        <translation>编辑折叠框组</translation>
    </message>
</context>
<context>
    <name>DrawbackBoxTaskMenu</name>
    <message>
        <source>Edit DrawbackBox</source>
        <translation>编辑折叠框</translation>
    </message>
</context>
<context>
    <name>ItemPropertyBrowser</name>
    <message>
        <source>XX Icon Selected off</source>
        <translation>XX 图标选中，关</translation>
    </message>
</context>
<context>
    <name>MatrixButtonsDialog</name>
    <message>
        <source>Edit Matrix buttons</source>
        <translation>编辑矩阵按钮</translation>
    </message>
</context>
<context>
    <name>MatrixButtonsEditor</name>
    <message>
        <source>Properties &amp;&gt;&gt;</source>
        <translation>属性 &amp;&gt;&gt;</translation>
    </message>
    <message>
        <source>Properties &amp;&lt;&lt;</source>
        <translation>属性 &amp;&lt;&lt;</translation>
    </message>
</context>
<context>
    <name>MatrixEditor</name>
    <message>
        <source>Cut</source>
        <translation>剪切</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Copy Whole Grid</source>
        <translation>复制整个网格</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Paste Into</source>
        <translation>粘贴到</translation>
    </message>
    <message>
        <source>Clear Cell</source>
        <translation>清空单元格</translation>
    </message>
</context>
<context>
    <name>MatrixPopButtonsDialog</name>
    <message>
        <source>Edit Matrix PopButtons</source>
        <translation>编辑矩阵弹出按钮</translation>
    </message>
</context>
<context>
    <name>MatrixPopButtonsEditor</name>
    <message>
        <source>Properties &amp;&gt;&gt;</source>
        <translation>属性 &amp;&gt;&gt;</translation>
    </message>
    <message>
        <source>Properties &amp;&lt;&lt;</source>
        <translation>属性 &amp;&lt;&lt;</translation>
    </message>
</context>
<context>
    <name>MatrixPopButtonsTaskMenu</name>
    <message>
        <source>Edit Buttons</source>
        <translation>编辑按钮</translation>
    </message>
</context>
<context>
    <name>MatrixPushButtonsEditor</name>
    <message>
        <source>MatrixPushButtons Editor</source>
        <translation>矩阵按钮编辑器</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>项</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>列</translation>
    </message>
    <message>
        <source>PushButton</source>
        <translation>按钮</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>MatrixPushButtonsTaskMenu</name>
    <message>
        <source>Edit Buttons</source>
        <translation>编辑按钮</translation>
    </message>
</context>
<context>
    <name>OptionButtonsTaskMenu</name>
    <message>
        <source>Edit Buttons</source>
        <translation>编辑按钮</translation>
    </message>
</context>
<context>
    <name>OptionComboEditor</name>
    <message>
        <source>New Item</source>
        <translation>新建项</translation>
    </message>
    <message>
        <source>Edit Option ComboBox</source>
        <translation>编辑选项组合框</translation>
    </message>
</context>
<context>
    <name>OptionComboTaskMenu</name>
    <message>
        <source>Edit Items</source>
        <translation>编辑项</translation>
    </message>
</context>
<context>
    <name>OptionRadiosTaskMenu</name>
    <message>
        <source>Edit Buttons</source>
        <translation>编辑按钮</translation>
    </message>
</context>
<context>
    <name>OptionsEditor</name>
    <message>
        <source>New Item</source>
        <translation>新建项</translation>
    </message>
    <message>
        <source>Edit OptionButtons</source>
        <translation>编辑选项按钮</translation>
    </message>
    <message>
        <source>Edit OptionRadios</source>
        <translation>编辑选项单选按钮</translation>
    </message>
</context>
<context>
    <name>QtBoolPropertyManager</name>
    <message>
        <source>True</source>
        <translation>真</translation>
    </message>
    <message>
        <source>False</source>
        <translation>假</translation>
    </message>
</context>
<context>
    <name>QtSizePolicyPropertyManager</name>
    <message>
        <source>Horizontal Policy</source>
        <translation>水平策略</translation>
    </message>
    <message>
        <source>Vertical Policy</source>
        <translation>垂直策略</translation>
    </message>
    <message>
        <source>Horizontal Stretch</source>
        <translation>水平伸展</translation>
    </message>
    <message>
        <source>Vertical Stretch</source>
        <translation>垂直伸展</translation>
    </message>
    <message>
        <source>&lt;Invalid&gt;</source>
        <translation>&lt;无效&gt;</translation>
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
        <translation>属性</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
</context>
<context>
    <name>qdesigner_internal::AbstractItemEditor</name>
    <message>
        <source>Properties</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>恢复</translation>
    </message>
</context>
<context>
    <name>qdesigner_internal::DesignerPropertyManager</name>
    <message>
        <source>Normal Off</source>
        <translation>正常，关</translation>
    </message>
    <message>
        <source>Normal On</source>
        <translation>正常，开</translation>
    </message>
    <message>
        <source>Disabled Off</source>
        <translation>禁用，关</translation>
    </message>
    <message>
        <source>Disabled On</source>
        <translation>禁用，开</translation>
    </message>
    <message>
        <source>Active Off</source>
        <translation>激活，关</translation>
    </message>
    <message>
        <source>Active On</source>
        <translation>激活，开</translation>
    </message>
    <message>
        <source>Selected Off</source>
        <translation>选中，关</translation>
    </message>
    <message>
        <source>Selected On</source>
        <translation>选中，开</translation>
    </message>
    <message>
        <source>disambiguation</source>
        <translation>消歧义</translation>
    </message>
    <message>
        <source>comment</source>
        <translation>注释</translation>
    </message>
    <message>
        <source>id</source>
        <translation>标识</translation>
    </message>
    <message>
        <source>translatable</source>
        <translation>可翻译</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>主题</translation>
    </message>
    <message>
        <source>[Theme] %1</source>
        <translation>[主题] %1</translation>
    </message>
</context>
<context>
    <name>qdesigner_internal::FindLine</name>
    <message>
        <source>Find</source>
        <translation>查找</translation>
    </message>
</context>
<context>
    <name>qdesigner_internal::IconThemeDialog</name>
    <message>
        <source>Set Icon From Theme</source>
        <translation>从主题设置图标</translation>
    </message>
    <message>
        <source>Input icon name from the current theme:</source>
        <translation>输入当前主题中的图标名称：</translation>
    </message>
</context>
<context>
    <name>qdesigner_internal::ItemListEditor</name>
    <message>
        <source>Items List</source>
        <translation>项列表</translation>
    </message>
    <message>
        <source>New Item</source>
        <translation>新建项</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>新建(&amp;N)</translation>
    </message>
    <message>
        <source>Delete Item</source>
        <translation>删除项</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>Move Item Up</source>
        <translation>上移项</translation>
    </message>
    <message>
        <source>U</source>
        <translation>上</translation>
    </message>
    <message>
        <source>Move Item Down</source>
        <translation>下移项</translation>
    </message>
    <message>
        <source>D</source>
        <translation>下</translation>
    </message>
    <message>
        <source>Properties &amp;&gt;&gt;</source>
        <translation>属性 &amp;&gt;&gt;</translation>
    </message>
    <message>
        <source>Properties &amp;&lt;&lt;</source>
        <translation>属性 &amp;&lt;&lt;</translation>
    </message>
    <message>
        <source>Rename Item</source>
        <translation>重命名项</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>复制为新项</translation>
    </message>
    <message>
        <source>Sort by Text</source>
        <translation>按文本排序</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>剪切</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>查找</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 项</translation>
    </message>
    <message>
        <source>Paste Over</source>
        <translation>粘贴并覆盖</translation>
    </message>
</context>
<context>
    <name>qdesigner_internal::PixmapEditor</name>
    <message>
        <source>Copy Path</source>
        <translation>复制路径</translation>
    </message>
    <message>
        <source>Paste Path</source>
        <translation>粘贴路径</translation>
    </message>
    <message>
        <source>Choose Resource...</source>
        <translation>选择资源...</translation>
    </message>
    <message>
        <source>Choose File...</source>
        <translation>选择文件...</translation>
    </message>
    <message>
        <source>Set Icon From Theme...</source>
        <translation>从主题设置图标...</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>[Theme] %1</source>
        <translation>[主题] %1</translation>
    </message>
</context>
<context>
    <name>qdesigner_internal::PropertyTreeModel</name>
    <message>
        <source>This control does not keep it.</source>
        <translation>此控件不保留该项。</translation>
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
