#include "image/key_table.h"

namespace tamrix {

// Printable noise, chosen once. Changing any byte makes every packed program
// and record file written before unreadable.
constinit const std::array<std::string_view, kKeySlots> kKeyTable = {
    // 0: 179 characters
    "4%;9q~?FI}g!|B,'220?+T?T{2*M_fX_rX([+S%4M_6`kL7O}6mb[[P<ac:&v2_EHyYxPm<Z"
    "7*<$Z`?612uuE-Av]rQ,=Y(xr{sogN[vZ'<)O?asUkcvKG^+C}-y;;>Srq[B.KB_5-&jm;Z<"
    "?mocoeUdP4{(/_{kYoI`AO8fA/S]raY[^}j",
    // 1: 184 characters
    "&r-@A'0IyIiF/)$qM]Z0{6[ia9K;B1q4DJNjv'(n>qg$9z_lL0F!z.;yT'4>g-},h09*S9l~"
    "nCA:a2D_!+dD@$Z_)[iFw}&-.>k,|Bv^B<k'!&[9v13Pba^Daf~JfHG13|n:`n8h>;.EK9-8"
    "+`|(cJEEc&GjkjE._[1uwj'NMTZg%H-,Z`Sg.+<+",
    // 2: 215 characters
    "=AlT8Hnj5@R[2.0!GfCZ~kHLR+8fS.hI3r9@7u{(zBw,>NyQ}:8_Vbkw62slG;OvgLrT$E:a"
    "|JAlQ09g;vfyV*9;+0PdLMu]Bf-fum`x||TEaaW.=`kzhQ=$wII!A10Ib(i7Q8tm&$fKY4*~"
    "G65O/hVhV=b9u`TMnY>'?<!Kk$2gN'p;Do43bL=E|iXJ1g8tPhl]D%WV9/<dSWH^$5/;^Xn",
    // 3: 279 characters
    "iPUrr4y<UvZbt<8@5a3nbP2hBw{]n~e>`dIc8*7+&rh4WN!nSy6nyOIQptwJ)cF|/>WDUEI-"
    "~74bA7PM-d7OI_n<ZR_i}=,h~XZ4,(-*I@o14#9bINFQ/&Iq!Ee%=>7Q!Z7AW3Q@#*Pm9D4n"
    "_Bx$|#RPfS0BCF2?Db/3L;y6`v%<I(J;kvDT=<t+W(*kQ,8nBKM=/6TXpGX7+ArAsL:q,Y2;"
    "-yI6Mn`XgM&bc';?A<!`hBQh=@M#<(Xv<m%0#xUUlK]X5_W/${1Lk}ormK!Qk>!",
    // 4: 257 characters
    "FO4uH$V*7@7sf2YN-q^'M{NKAc8.AoxXE?Rr:AFhfE~yMxGLD`;Uq_U7<@kJ/i%jQreKrq{w"
    "dy^=i3t=yULuZJZA:qhU?Z5m9mR90_cdzazf&14{8[e),^;8c%J+7c~lJ)p/~e7rxZq}mnfN"
    "z]Q-#c4H*:dw5_{pGfMJ:;-'G=KUdH]Z=/$U%~+ZbQw9`O5z2H;7ULcN+]xIu#]z4O#u!rs<"
    "N}jo};uf)(sK'7`G@/jzo+c?J`rc_0:@&u@/HKK_y",
    // 5: 176 characters
    "qTuKO9p_|=d(I5[Elfj.&{G:DlnSe{p@^m!JEezJEZ$(Tb@}7V/4:,@AEz.OY{}In$;1)'5j"
    "jmvK4'uFK>,@fnfW*>)7P6&bz:UkzT3_jMq+D{#eOWZli]$>)U1&NrVw}K9d[rGp2H?r3-u'"
    "3Vxf>P<f+X34Y`E}{xB5}zj$]~=ne$;t",
    // 6: 228 characters
    "1(FSSop'kml,mFC00m4l*5oS:fpeY]d:``%1gV$W|vA+P:Ug([gC;L,}7ErXGRCjKdb8:'+r"
    "T1}|~1,GD=;qg1U.ag]Q^Y%tR)Hy7~~0D{BFz5(NJanoZ:3dl(m8s2z]WcqJ5gfrV9s7'<z0"
    "xvs/~(t@Uwi$uXLnv8)97xwN`<;T@4^F=~TvtY]daC^e}MkP/-}{&a/Ixvu}V?'ggCGJi<X%"
    "961Pb_^m49C<",
    // 7: 182 characters
    "MUM/)m3)mK}QeT;.)J`2k9`Z?gNO7]wXVS_n.8FB?b3xkZOiw'MA=9r[eJbq;OT^TRk__?Xp"
    "J,rTF<jc!qYU27xsO:)majm|@JD6B<JT`g|Jq&@p{P|MVe|EFcG~t>%U:DjE5C)mJ`@ie)69"
    "I**#fQ^vfB}xyq_Kqn&u9[6@0KTw2)~t[[V!.m",
    // 8: 176 characters
    "lS!`^ISM:gY?hYwU2r*M+v!_,I7]MN`8pg$w]v;A?D#)2PtI[XN[c(5t3S3m/m]g2@fHeIx)"
    "_uI%-*0u$E7)qbbI/9sG{K+>vhJxSTtDNCoUIS<u2EY4i9Sv~@U.%)(xm!k`KKx5/VJ5)M7r"
    "ofviM@B~IPiF_z66<G[g;1yzZ-k[vwsb",
    // 9: 174 characters
    "Dv0Fu`=U`UOnH.-N=7XK^dOyU`I,~?XywobE-xia/u[^/F:@4l%#06z(#N*,UrMF2qhp.,~g"
    "M;h}1BEx~;8!{.-#jmg9+_Y)Hbg!Lk6W(nlGy=v.0+Nn.g,o}?MlPlbTfSzAB.&~y~kq#@_R"
    "LbkS-Lb55'udB1WAmf1AX870536.B~",
    // 10: the empty slot
    ""};

}  // namespace tamrix
