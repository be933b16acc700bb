;;; lumeric-mode.el --- Major mode for lumeric scenes (.vlm)  -*- lexical-binding: t -*-

;; Version: 0.1
;; Package-Requires: ((emacs "25.1"))
;; Keywords: languages, graphics

;;; Commentary:

;; Highlighting, indentation and compilation support for scenes written in
;; lumeric's extended VRML 1.0 language.  Files ending in .vlm open in
;; `lumeric-mode'; plain VRML files (.wrl) are left alone.
;;
;; M-x compile offers "lumeric --lint --message-format gnu FILE", and the
;; messages it prints lead to their file and line with `next-error'.

;;; Code:

(require 'cl-lib)
(require 'compile)

(defgroup lumeric nil
  "Editing lumeric scenes."
  :group 'languages
  :prefix "lumeric-")

(defcustom lumeric-indent-offset nil
  "Columns of indentation per level; nil means one tab (`tab-width')."
  :type '(choice (const :tag "One tab" nil) integer)
  :safe (lambda (value) (or (null value) (integerp value))))

(defcustom lumeric-program "lumeric"
  "The lumeric command, for `compile-command'."
  :type 'string)

(defface lumeric-operator-face
  '((t :inherit font-lock-builtin-face))
  "Face for operators in expressions and the = that starts one.")

;;;; Word lists

(defconst lumeric-standard-nodes
  '("AsciiText" "Complexity" "Cone" "Coordinate3" "Cube" "Cylinder"
    "DirectionalLight" "FontStyle" "Group" "IndexedFaceSet" "IndexedLineSet"
    "Info" "LOD" "Material" "MaterialBinding" "MatrixTransform" "Normal"
    "NormalBinding" "OrthographicCamera" "PerspectiveCamera" "PointLight"
    "PointSet" "Rotation" "Scale" "Separator" "ShapeHints" "Sphere"
    "SpotLight" "Switch" "Texture2" "Texture2Transform" "TextureCoordinate2"
    "Transform" "TransformSeparator" "Translation" "WWWAnchor" "WWWInline")
  "The VRML 1.0 node types.")

(defconst lumeric-generator-nodes '("Ball" "Connect" "Wall")
  "Nodes that build geometry.")

(defconst lumeric-control-nodes '("LOOP" "SELECT" "PARAMETERS")
  "Nodes that repeat, choose and name parts of the scene.")

(defconst lumeric-statements '("SET" "APPEND" "DECLARE" "PRINT" "PRECISION")
  "Statements, which stand where a node may stand.")

(defconst lumeric-functions
  '("abs" "acos" "asin" "atan" "atan2" "ceil" "Center" "Color" "Convert3D"
    "Convert4D" "cos" "cosh" "det" "determinate" "dist" "e" "exp" "fabs"
    "floor" "fmod" "FractalSurfaceData" "FractalSurfaceIndex" "GrayColor"
    "GreyColor" "hypot" "Interpolate" "Inverse" "ln" "log" "log10" "max" "min"
    "mod" "pi" "PointAt" "pow" "rand" "random" "Rotate" "round" "scale" "sin"
    "sinh" "sqrt" "tan" "tanh" "Translate" "Transpose" "XRotate" "XYReflect"
    "XZReflect" "YRotate" "YZReflect" "ZRotate")
  "The built-in functions, whose names are written in any case.")

(defconst lumeric-enum-constants
  '("ALL" "AUTO" "BOLD" "BOTTOM" "CENTER" "CLAMP" "CLOCKWISE" "CONVEX"
    "COUNTERCLOCKWISE" "DEFAULT" "ITALIC" "LEFT" "NONE" "OFF" "ON" "OVERALL"
    "PER_FACE" "PER_FACE_INDEXED" "PER_PART" "PER_PART_INDEXED" "PER_VERTEX"
    "PER_VERTEX_INDEXED" "POINT" "REPEAT" "RIGHT" "SANS" "SERIF" "SIDES"
    "SOLID" "TOP" "TYPEWRITER" "UNKNOWN_FACE_TYPE" "UNKNOWN_ORDERING"
    "UNKNOWN_SHAPE_TYPE")
  "The values of the VRML 1.0 enumerated and bit-mask fields.")

(defconst lumeric-units '("ft" "yd" "in" "cm" "m" "rad" "deg" "grad")
  "The units a number may carry after an apostrophe.")

(defconst lumeric--name "[A-Za-z_][A-Za-z0-9_]*")

;;;; Highlighting

(defun lumeric--in-group-p ()
  "Non-nil when point is inside parentheses or a backquoted name part."
  (let ((open (nth 1 (syntax-ppss))))
    (or (and open (eq (char-after open) ?\())
        (save-excursion
          (cl-oddp (how-many "`" (line-beginning-position) (point)))))))

(defun lumeric--matcher (regexp &optional fold test)
  "A font-lock matcher for REGEXP, ignoring case when FOLD is non-nil.
TEST, when given, is called with point at the start of a match and the
match data set; a match for which it returns nil is skipped."
  (lambda (limit)
    (let ((case-fold-search fold)
          found)
      (while (and (not found) (< (point) limit)
                  (re-search-forward regexp limit t))
        (if (or (null test)
                (save-excursion
                  (goto-char (match-beginning 0))
                  (save-match-data (funcall test))))
            (setq found t)
          (goto-char (1+ (match-beginning 0)))))
      found)))

(defun lumeric--after-blank-p ()
  "Non-nil when the character before point may precede a field name."
  (or (bolp) (memq (char-before) '(?\s ?\t ?{ ?\]))))

(defun lumeric--field-name-p ()
  "Non-nil when the name at point names a field of the enclosing node."
  (and (lumeric--after-blank-p)
       (not (lumeric--in-group-p))
       (not (let ((case-fold-search t))
              (looking-at-p "\\(?:if\\|then\\|else\\|true\\|false\\)\\_>")))))

(defun lumeric--number-p ()
  "Non-nil when the number at point does not continue a name or operand."
  (not (and (char-before)
            (string-match-p "[[:alnum:]_.)]\\|\\]" (string (char-before))))))

(defun lumeric--fields-end ()
  "The end of the fields [ ... ] declaration whose [ was just matched."
  (save-excursion
    (or (ignore-errors (goto-char (1- (scan-lists (point) 1 1))) (point))
        (line-end-position))))

(defconst lumeric-font-lock-keywords
  `(;; The header line, which the syntax table reads as a comment.
    ("^\\(#VRML V1\\.0 ascii\\)\\_>" 1 font-lock-preprocessor-face t)
    ;; fields [ SFFloat start, MFVec3f points ]
    ("\\_<\\(fields\\)[ \t]*\\["
     (1 font-lock-keyword-face)
     ("\\_<\\([SM]F[A-Z][A-Za-z0-9]*\\)\\_>" (lumeric--fields-end) nil
      (1 font-lock-type-face))
     (,(concat "\\_<\\(" lumeric--name "\\)\\_>") (lumeric--fields-end) nil
      (1 font-lock-variable-name-face)))
    ("\\_<\\(DEF\\)[ \t]+\\([^][ \t\n\"#'+,.\\{}()`~:]+\\)"
     (1 font-lock-keyword-face) (2 font-lock-function-name-face))
    (,(concat "\\_<\\(USE\\)\\_>\\(?:[ \t]+\\(" lumeric--name "\\)\\)?")
     (1 font-lock-keyword-face) (2 font-lock-function-name-face nil t))
    ("\\_<VARNAME\\_>" . font-lock-keyword-face)
    ("\\_<\\(INCLUDE\\|OUTPUT_TO\\)\\_>\\(?:[ \t]+\\([^ \t\n#]+\\)\\)?"
     (1 font-lock-keyword-face) (2 font-lock-string-face nil t))
    (,(concat "\\_<" (regexp-opt lumeric-statements) "\\_>") . font-lock-keyword-face)
    (,(concat "\\_<" (regexp-opt lumeric-control-nodes) "\\_>") . font-lock-keyword-face)
    ;; Node types; a type name before ( is a function (Scale).
    (,(concat "\\_<" (regexp-opt (append lumeric-standard-nodes lumeric-generator-nodes) t)
              "\\_>[ \t]*\\(?:{\\|#\\|$\\)")
     1 font-lock-type-face)
    (,(concat "\\_<\\(" lumeric--name "\\)[ \t]*{") 1 font-lock-type-face)
    (,(lumeric--matcher (concat "\\_<" (regexp-opt lumeric-functions t) "[ \t]*(") t)
     1 font-lock-builtin-face)
    (,(lumeric--matcher "\\_<\\(?:if\\|then\\|else\\)\\_>" t) . font-lock-keyword-face)
    (,(lumeric--matcher "\\_<\\(?:true\\|false\\)\\_>" t) . font-lock-constant-face)
    (,(concat "\\_<" (regexp-opt lumeric-enum-constants) "\\_>") . font-lock-constant-face)
    ;; NAME:field, :field and the parts of a name built with ~.
    (,(concat "\\_<\\(" lumeric--name "\\)[:~]") 1 font-lock-function-name-face)
    (,(concat "~\\(" lumeric--name "\\)") 1 font-lock-function-name-face)
    (,(concat ":[ \t]*\\(" lumeric--name "\\)") 1 font-lock-variable-name-face)
    (,(lumeric--matcher "\\_<\\([a-z][A-Za-z0-9_]*\\)[ \t]+[^] \t\n}#,]"
                        nil #'lumeric--field-name-p)
     1 font-lock-variable-name-face)
    (,(lumeric--matcher
       "[-+]?\\(?:0x[0-9A-Fa-f]+\\|\\(?:[0-9]+\\.?[0-9]*\\|\\.[0-9]+\\)\\(?:[eE][-+]?[0-9]+\\)?\\)"
       nil #'lumeric--number-p)
     . font-lock-constant-face)
    (,(lumeric--matcher (concat "'[ \t]*" (regexp-opt lumeric-units t) "\\_>") t)
     1 font-lock-builtin-face)
    (,(concat "'[ \t]*\\(" lumeric--name "\\)") 1 font-lock-warning-face)
    ;; = that starts a whole-field expression, then the operators.
    ("\\(?:^\\|[ \t[,]\\)\\(=\\)[^=]" 1 'lumeric-operator-face)
    ("||\\|&&\\|==\\|!=\\|<=\\|>=\\|[-+*/%^<>!|~;]" . 'lumeric-operator-face))
  "Highlighting for `lumeric-mode'.")

;;;; Indentation

(defun lumeric--indent-level ()
  "The indentation level of the current line.
Each earlier line that leaves a brace or bracket open adds one level,
however many it opens; brackets this line starts by closing do not count."
  (save-excursion
    (back-to-indentation)
    (skip-chars-forward "]}) \t")
    (let ((lines '()))
      (dolist (open (nth 9 (syntax-ppss)))
        (let ((start (save-excursion (goto-char open) (line-beginning-position))))
          (unless (or (member start lines) (>= open (line-beginning-position)))
            (push start lines))))
      (length lines))))

(defun lumeric-indent-line ()
  "Indent the current line by the braces and brackets around it."
  (interactive)
  (let ((column (* (lumeric--indent-level) (or lumeric-indent-offset tab-width)))
        (from-end (- (point-max) (point))))
    (indent-line-to column)
    (when (> (- (point-max) from-end) (point))
      (goto-char (- (point-max) from-end)))))

;;;; Compilation

(defconst lumeric-compilation-regexps
  '((lumeric
     "^\\(.+?\\):\\([0-9]+\\): \\(?:error\\|\\(warning\\)\\|\\(note\\)\\): "
     1 2 nil (3 . 4))
    ;; A message about a whole file names no line.
    (lumeric-file
     "^\\([^\n]*?\\.[A-Za-z0-9]+\\): \\(?:error\\|\\(warning\\)\\|\\(note\\)\\): "
     1 nil nil (2 . 3)))
  "How `compilation-mode' finds the place of a message in the gnu format.
Messages that name no file (\"lumeric: error: ...\") are left as text.")

(dolist (entry lumeric-compilation-regexps)
  (setf (alist-get (car entry) compilation-error-regexp-alist-alist) (cdr entry))
  (add-to-list 'compilation-error-regexp-alist (car entry)))

;;;; The mode

(defvar lumeric-mode-syntax-table
  (let ((table (make-syntax-table)))
    (modify-syntax-entry ?# "<" table)
    (modify-syntax-entry ?\n ">" table)
    (modify-syntax-entry ?\" "\"" table)
    (modify-syntax-entry ?\\ "\\" table)
    (modify-syntax-entry ?_ "_" table)
    (dolist (c '(?' ?` ?~ ?: ?= ?+ ?- ?* ?/ ?% ?^ ?< ?> ?! ?& ?| ?\; ?,))
      (modify-syntax-entry c "." table))
    table)
  "Syntax table for `lumeric-mode'.")

;;;###autoload
(define-derived-mode lumeric-mode prog-mode "lumeric"
  "Major mode for lumeric scenes, extended VRML 1.0 files (.vlm).
\\<lumeric-mode-map>\\[compile] checks the scene with `lumeric --lint'."
  :syntax-table lumeric-mode-syntax-table
  (setq-local comment-start "# ")
  (setq-local comment-end "")
  (setq-local comment-start-skip "#+[ \t]*")
  (setq-local font-lock-defaults '(lumeric-font-lock-keywords nil nil))
  (setq-local indent-line-function #'lumeric-indent-line)
  (setq-local indent-tabs-mode t)
  (setq-local electric-indent-chars (append "}]" electric-indent-chars))
  (setq-local compile-command
              (concat lumeric-program " --lint --message-format gnu "
                      (if buffer-file-name
                          (shell-quote-argument (file-name-nondirectory buffer-file-name))
                        ""))))

;;;###autoload
(add-to-list 'auto-mode-alist '("\\.vlm\\'" . lumeric-mode))

(provide 'lumeric-mode)

;;; lumeric-mode.el ends here
