// The PostScript that runs before a drawing: in place of painting, it prints paths in the lines that
// traces_eps.h tells.
#pragma once

#include <string_view>

namespace tessarel {

// Its own names are looked up while it is read (//name), so that nothing that the drawing defines can come
// between; the operators it replaces are in userdict, where the drawing's own bound procedures find them. The
// file's program follows in the same input.
inline constexpr std::string_view PrologueEps = R"PS(userdict begin 50 dict begin
/t 128 string def
/v [0] def
% a length, in thousandths of a point; the interpreter clamps what lies beyond 838860 points
/n {1000 mul dup abs 800000000 gt {pop (?) print} {round cvi //t cvs print} ifelse} bind def
/p {exch //n exec ( ) print //n exec} bind def
/m {(m ) print //p exec (\n) print} bind def
/l {(l ) print //p exec (\n) print} bind def
/c {(c ) print 6 2 roll 4 2 roll 3 {//p exec ( ) print} repeat (\n) print} bind def
/h {(h\n) print} bind def
% letter d -: the current path in default user space, unless a glyph is being painted
/d {//v 0 get 0 eq
  {(\n) print print (\n) print gsave matrix defaultmatrix setmatrix
   mark {//m //l //c //h pathforall} stopped {cleartomark (?\n) print} {cleartomark} ifelse
   grestore} {pop} ifelse} bind def
% name i -: something that is no path
/i {//v 0 get 0 eq {(\ni ) print print (\n) print} {pop} ifelse} bind def
% x y w h r -: adds a rectangle to the path
/r {4 2 roll moveto 1 index 0 rlineto 0 exch rlineto neg 0 rlineto closepath} bind def
% x y w h R -, array R -: the path becomes these rectangles
/R {newpath dup type dup /arraytype eq exch /packedarraytype eq or
  {0 4 2 index length 4 sub {2 copy 4 getinterval aload pop //r exec pop} for pop}
  {dup type /stringtype eq {pop (rectfill) //i exec} {//r exec} ifelse} ifelse} bind def
% any M any bool: is it a matrix
/M {dup type dup /arraytype eq exch /packedarraytype eq or
  {dup xcheck {false} {dup length 6 eq
    {dup 0 get type dup /integertype eq exch /realtype eq or} {false} ifelse} ifelse} {false} ifelse} bind def
% proc s -: text, whose glyphs paint unseen
/s {(text) //i exec //v 0 2 copy get 1 add put
  stopped //v 0 2 copy get 1 sub put {stop} if} bind def
{{currentfile cvx exec} stopped
  {(\n! ) print //$error /errorname get {//t cvs} stopped {pop pop (error)} if print (\n) print}
  {(\nfin\n) print} ifelse flush quit} bind
mark
/stroke {(S) //d exec newpath} bind
/fill {(F) //d exec newpath} bind
/eofill {(E) //d exec newpath} bind
/ufill {gsave newpath uappend (F) //d exec grestore} bind
/ueofill {gsave newpath uappend (E) //d exec grestore} bind
/ustroke {gsave //M exec {pop} if newpath uappend (S) //d exec grestore} bind
/rectfill {gsave //R exec (R) //d exec grestore} bind
/rectstroke {gsave //M exec {pop} if //R exec (R) //d exec grestore} bind
/shfill {pop (shfill) //i exec} bind
/image {(image) //i exec image} bind
/imagemask {(imagemask) //i exec imagemask} bind
/colorimage {(colorimage) //i exec colorimage} bind
/show {{show} //s exec} bind
/ashow {{ashow} //s exec} bind
/widthshow {{widthshow} //s exec} bind
/awidthshow {{awidthshow} //s exec} bind
/kshow {{kshow} //s exec} bind
/cshow {{cshow} //s exec} bind
/xshow {{xshow} //s exec} bind
/yshow {{yshow} //s exec} bind
/xyshow {{xyshow} //s exec} bind
/glyphshow {{glyphshow} //s exec} bind
/setpagedevice {pop} bind
/print {pop} bind
/= {pop} bind
/== {pop} bind
/stack {}
/pstack {}
/quit {(\nfin\n) print flush quit} bind
counttomark 2 idiv {userdict 3 1 roll put} repeat pop end end exec
)PS";

} // namespace tessarel
