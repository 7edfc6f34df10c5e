<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- English needs no translation. This file ends the search of those whose first language it is, so that they do not get
     their second one. Its one text is there as a file without any cannot be loaded. -->
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>MainWindow</name>
    <message>
        <source>Tessarine</source>
        <translation>Tessarine</translation>
    </message>
</context>
</TS>
