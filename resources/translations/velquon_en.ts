<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>velquon::EventText</name>
    <message numerus="yes">
        <source>%n %1 decayed</source>
        <comment>symbol of particles</comment>
        <translation>
            <numerusform>%n %1 decayed</numerusform>
            <numerusform>%n %1 decayed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n %1 converted to pairs</source>
        <comment>symbol of particles</comment>
        <translation>
            <numerusform>%n %1 converted to a pair</numerusform>
            <numerusform>%n %1 converted to pairs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n %1 left the chamber at once</source>
        <comment>symbol of particles</comment>
        <translation>
            <numerusform>%n %1 left the chamber at once</numerusform>
            <numerusform>%n %1 left the chamber at once</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>the event holds no points of %n %1</source>
        <comment>symbol of particles</comment>
        <translation>
            <numerusform>the event holds no points of %n %1</numerusform>
            <numerusform>the event holds no points of %n %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n %1 left the chamber</source>
        <comment>symbol of particles</comment>
        <translation>
            <numerusform>%n %1 left the chamber</numerusform>
            <numerusform>%n %1 left the chamber</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n %1 are not detected</source>
        <comment>symbol of particles</comment>
        <translation>
            <numerusform>%n %1 is not detected</numerusform>
            <numerusform>%n %1 are not detected</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n points</source>
        <translation>
            <numerusform>%n point</numerusform>
            <numerusform>%n points</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n tracks</source>
        <translation>
            <numerusform>%n track</numerusform>
            <numerusform>%n tracks</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n tracks on the xy plane</source>
        <translation>
            <numerusform>%n track on the xy plane</numerusform>
            <numerusform>%n tracks on the xy plane</numerusform>
        </translation>
    </message>
</context>
</TS>
