<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>VeskUiQtImpl</name>
    <message>
        <source>忽略一次</source>
        <translation>Einmal übergehen</translation>
    </message>
</context>
</TS>
