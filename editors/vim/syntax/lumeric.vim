" Vim syntax file
" Language:	lumeric scenes (extended VRML 1.0, *.vlm)

if exists('b:current_syntax')
  finish
endif

let s:cpo_save = &cpo
set cpo&vim

syn case match
syn iskeyword @,48-57,_

" Within an expression: what a value or a parenthesized group may hold.
syn cluster lumericExpression contains=lumericComment,lumericString,lumericNamePart,lumericGroup,
      \lumericFunction,lumericBuiltin,lumericConditional,lumericBoolean,lumericEnum,lumericNodeRef,
      \lumericAccessor,lumericNumber,lumericBadUnit,lumericUnit,lumericOperator,lumericDelimiter

" Operators first, so that a sign written before a number is part of it.
syn match lumericOperator "||\|&&\|==\|!=\|<=\|>=\|[-+*/%^<>!|;]"
syn match lumericOperator "\~"
syn match lumericDelimiter "[{}\[\],]"

" Numbers: decimal, 0x hexadecimal and 0 octal, with a sign when nothing
" that ends an operand stands before them; a unit follows an apostrophe.
syn match lumericNumber "\%([[:alnum:]_.)\]]\)\@<![-+]\=\%(0x\x\+\|\%(\d\+\.\=\d*\|\.\d\+\)\%([eE][-+]\=\d\+\)\=\)"
syn match lumericBadUnit "'\s*\h\w*"
syn match lumericUnit "'\s*\c\%(ft\|yd\|in\|cm\|m\|rad\|deg\|grad\)\>"

" Names: NAME:field, :field, and the parts of a name built with ~.
syn match lumericNodeRef "\h\w*\ze[:\~]"
syn match lumericNodeRef "\~\@<=\h\w*"
syn match lumericAccessor ":" nextgroup=lumericFieldRef skipwhite
syn match lumericFieldRef "\h\w*" contained

syn match lumericFunction "\h\w*\ze\s*("
syn match lumericBuiltin "\c\<\%(FractalSurfaceIndex\|FractalSurfaceData\|determinate\|Interpolate\|Convert3D\|Convert4D\|GrayColor\|GreyColor\|Translate\|Transpose\|XYReflect\|XZReflect\|YZReflect\|Inverse\|PointAt\|XRotate\|YRotate\|ZRotate\|Center\|random\|Rotate\|atan2\|Color\|floor\|hypot\|log10\|round\|scale\|acos\|asin\|atan\|ceil\|cosh\|dist\|fabs\|fmod\|rand\|sinh\|sqrt\|tanh\|abs\|cos\|det\|exp\|log\|max\|min\|mod\|pow\|sin\|tan\|ln\|pi\|e\)\>\ze\s*("

syn keyword lumericEnum ALL AUTO BOLD BOTTOM CENTER CLAMP CLOCKWISE CONVEX COUNTERCLOCKWISE DEFAULT
syn keyword lumericEnum ITALIC LEFT NONE OFF ON OVERALL PER_FACE PER_FACE_INDEXED PER_PART
syn keyword lumericEnum PER_PART_INDEXED PER_VERTEX PER_VERTEX_INDEXED POINT REPEAT RIGHT SANS SERIF
syn keyword lumericEnum SIDES SOLID TOP TYPEWRITER UNKNOWN_FACE_TYPE UNKNOWN_ORDERING UNKNOWN_SHAPE_TYPE
syn case ignore
syn keyword lumericConditional if then else
syn keyword lumericBoolean true false
syn case match

" A lower-case name after a blank, followed by a blank and a value, names
" a field.  Inside parentheses and backquotes names are references.
syn match lumericField "\%([^[:space:]{\]]\)\@<!\l\w*\ze[ \t]\+[^[:space:]}#,\]]"

" A value that starts with = is one expression for the whole field.
syn match lumericAssign "\%([^[:space:][,]\)\@<!==\@!"

syn region lumericGroup matchgroup=lumericParen start="(" end=")" oneline contains=@lumericExpression
syn region lumericNamePart matchgroup=lumericBackquote start="`" end="`" oneline contains=@lumericExpression

" fields [ SFFloat start, MFVec3f points ]
syn region lumericFieldDecl start="\<fields\>\ze\s*\[" end="\]" contains=lumericFieldsKeyword,lumericDeclaredName,lumericFieldType,lumericComment,lumericDelimiter
syn match lumericDeclaredName "\<\h\w*\>" contained
syn match lumericFieldsKeyword "\<fields\>" contained
syn match lumericFieldType "\<[SM]F\u\w*\>" contained

" Node types: any name before a brace, then the catalogue and the nodes the
" extended language adds.  A catalogue name before ( is a function (Scale).
syn match lumericUserNode "\<\h\w*\ze\s*{"
syn match lumericNode "\<\%(OrthographicCamera\|TextureCoordinate2\|TransformSeparator\|PerspectiveCamera\|Texture2Transform\|DirectionalLight\|MaterialBinding\|MatrixTransform\|IndexedFaceSet\|IndexedLineSet\|NormalBinding\|Coordinate3\|Translation\|Complexity\|PointLight\|ShapeHints\|AsciiText\|FontStyle\|Separator\|SpotLight\|Transform\|WWWAnchor\|WWWInline\|Cylinder\|Material\|PointSet\|Rotation\|Texture2\|Normal\|Sphere\|Switch\|Group\|Scale\|Cone\|Cube\|Info\|LOD\)\>\ze\s*\%({\|#\|$\)"
syn match lumericGenerator "\<\%(Ball\|Connect\|Wall\)\>\ze\s*\%({\|#\|$\)"
syn keyword lumericControl LOOP SELECT PARAMETERS

" Statements and names.
syn keyword lumericStatement SET APPEND DECLARE PRINT PRECISION
syn keyword lumericStatement INCLUDE OUTPUT_TO nextgroup=lumericFileName skipwhite
syn match lumericFileName "[^[:space:]#]\+" contained
syn keyword lumericKeyword DEF nextgroup=lumericDefName skipwhite
syn keyword lumericKeyword USE nextgroup=lumericUseName skipwhite
syn match lumericUseName "\h\w*" contained
syn keyword lumericKeyword VARNAME
syn match lumericDefName "[^[:space:]\"#'+,.\[\\\]{}()`\~:]\+" contained

syn region lumericString start=+"+ skip=+\\.+ end=+"\|$+ contains=lumericEscape
syn match lumericEscape "\\." contained

syn keyword lumericTodo TODO FIXME XXX contained
syn match lumericComment "#.*$" contains=lumericTodo,@Spell
syn match lumericHeader "^#VRML V1\.0 ascii\>"

hi def link lumericHeader        PreProc
hi def link lumericComment       Comment
hi def link lumericTodo          Todo
hi def link lumericNode          Type
hi def link lumericGenerator     Type
hi def link lumericUserNode      Type
hi def link lumericControl       Repeat
hi def link lumericStatement     Statement
hi def link lumericKeyword       Keyword
hi def link lumericDefName       Identifier
hi def link lumericNodeRef       Identifier
hi def link lumericUseName       Identifier
hi def link lumericFileName      String
hi def link lumericFieldsKeyword Keyword
hi def link lumericFieldType     Type
hi def link lumericDeclaredName  Identifier
hi def link lumericField         Identifier
hi def link lumericFieldRef      Identifier
hi def link lumericAccessor      Delimiter
hi def link lumericAssign        Operator
hi def link lumericOperator      Operator
hi def link lumericDelimiter     Delimiter
hi def link lumericParen         Delimiter
hi def link lumericBackquote     Special
hi def link lumericFunction      Function
hi def link lumericBuiltin       Function
hi def link lumericConditional   Conditional
hi def link lumericBoolean       Boolean
hi def link lumericEnum          Constant
hi def link lumericNumber        Number
hi def link lumericUnit          Special
hi def link lumericBadUnit       Error
hi def link lumericString        String
hi def link lumericEscape        SpecialChar

let b:current_syntax = 'lumeric'

let &cpo = s:cpo_save
unlet s:cpo_save
