<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>Texts</name>
    <message numerus="yes">
        <source>%n rows below the headings</source>
        <translation>
            <numerusform>%n row below the headings</numerusform>
            <numerusform>%n rows below the headings</numerusform>
        </translation>
    </message>
</context>
</TS>
