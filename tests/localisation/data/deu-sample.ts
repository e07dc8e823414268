<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Velmora Drovia</source>
        <translation>Velmora Drovia (Deutsch)</translation>
    </message>
    <message>
        <source>Drovia is initializing...</source>
        <translation>Drovia wird initialisiert...</translation>
    </message>
    <message>
        <source>Drovia is ready.</source>
        <translation>Drovia ist bereit.\n\tViel Spaß!</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <translation>%1 Datei(en) werden verarbeitet...</translation>
    </message>
</context>
</TS>
