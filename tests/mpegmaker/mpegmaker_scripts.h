#pragma once
// The scripts of the MPEG maker's script table, between their fixed head and end. Kept apart
// from the test's source, whose raw strings hold quotes that moc cannot read past.

#include <QString>

inline QString WindowsScript(const QString& wait) {
    return R"(echo Target:  PAL VCD (ffmpeg -target pal-vcd)
echo Output Folder:  E:\out\
echo Video Files:  1
)" + wait + R"(echo.
echo File 1 of 1:  D:\in\a.b.mp4
"C:\App\MPEG\mpegmaker.exe" pal-vcd "scale=w='if(gt(dar,4/3),352,2*round(1056*dar/8))':h='if(gt(dar,4/3),2*round(1152/dar/6),288)',pad=352:288:-1:-1,setdar=4/3" "D:\in\a.b.mp4" "E:\out\a.b.mpg" > "E:\out\a.b.log")";
}

inline QString PosixScript(const QString& wait) {
    return R"(echo Target:  NTSC SVCD (ffmpeg -target ntsc-svcd)
echo Output Folder:  /out/
echo Video Files:  2
)" + wait + R"(echo.
echo File 1 of 2:  /in/-x & y's été.mp4
"/app/MPEG/mpegmaker.exe" ntsc-svcd "scale=w='if(gt(dar,4/3),480,2*round(1440*dar/8))':h='if(gt(dar,4/3),2*round(1920/dar/6),480)',pad=480:480:-1:-1,setdar=4/3" "/in/-x & y's été.mp4" "/out/-x & y's été.mpg" > "/out/-x & y's été.log"
echo.
echo File 2 of 2:  /in/$z;|<>
"/app/MPEG/mpegmaker.exe" ntsc-svcd "scale=w='if(gt(dar,4/3),480,2*round(1440*dar/8))':h='if(gt(dar,4/3),2*round(1920/dar/6),480)',pad=480:480:-1:-1,setdar=4/3" "/in/$z;|<>" "/out/$z;|<>.mpg" > "/out/$z;|<>.log")";
}
