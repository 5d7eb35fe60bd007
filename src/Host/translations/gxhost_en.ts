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
    <message numerus="yes">
        <source>%n result(s) of %1 points</source>
        <translation>
            <numerusform>%n result of %1 points</numerusform>
            <numerusform>%n results of %1 points</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n result(s) from %1 to %2 points; most, %3, from %4 to %5</source>
        <translation>
            <numerusform>%n result from %1 to %2 points; most, %3, from %4 to %5</numerusform>
            <numerusform>%n results from %1 to %2 points; most, %3, from %4 to %5</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n note(s)</source>
        <translation>
            <numerusform>%n note</numerusform>
            <numerusform>%n notes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln shared value(s)</source>
        <translation>
            <numerusform>%Ln shared value</numerusform>
            <numerusform>%Ln shared values</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln nearly the same</source>
        <translation>
            <numerusform>%Ln nearly the same</numerusform>
            <numerusform>%Ln nearly the same</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n student(s)</source>
        <translation>
            <numerusform>%n student</numerusform>
            <numerusform>%n students</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n assignment(s)</source>
        <translation>
            <numerusform>%n assignment</numerusform>
            <numerusform>%n assignments</numerusform>
        </translation>
    </message>
</context>
</TS>
