<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv_SE" sourcelanguage="en_US">
<context>
    <name>Sonalyx</name>
    <message>
        <source>Self-voicing activated.</source>
        <translation>Självröstning aktiverad.</translation>
    </message>
    <message>
        <source>P&amp;rint GraphTABCtrl+P</source>
        <translation>Sk&amp;riv ut grafTABCtrl+P</translation>
    </message>
    <message>
        <source>Auto return: enabled.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Elsewhere</name>
    <message>
        <source>Plot</source>
        <translation>Diagram</translation>
    </message>
</context>
</TS>
