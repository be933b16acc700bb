;;; lumeric-mode-test.el --- Tests of editors/emacs/lumeric-mode.el  -*- lexical-binding: t -*-

;; Run as
;;   emacs --batch -Q -l editors/emacs/lumeric-mode.el -l lumeric-mode-test.el \
;;     --eval '(setq lumeric-test-messages "FILE" lumeric-test-examples "DIR")' \
;;     -f ert-run-tests-batch-and-exit
;; with FILE the messages the command printed for broken.vlm in the gnu
;; format and DIR the folder of the example scenes.

(require 'ert)
(require 'cl-lib)
(require 'subr-x)
(require 'lumeric-mode)

(defvar lumeric-test-messages nil "The gnu messages printed for broken.vlm.")
(defvar lumeric-test-examples nil "The folder of the example scenes.")

(defconst lumeric-test-dir
  (file-name-directory (or load-file-name buffer-file-name))
  "tests/editors/emacs/.")

(defun lumeric-test--table (file)
  "The rows of the tab-separated FILE under tests/editors, comments left out."
  (with-temp-buffer
    (insert-file-contents (expand-file-name file (expand-file-name ".." lumeric-test-dir)))
    (cl-loop for line in (split-string (buffer-string) "\n" t)
             unless (string-prefix-p "#" line)
             collect (split-string line "\t"))))

(defconst lumeric-test-faces
  '(("header" font-lock-preprocessor-face)
    ("comment" font-lock-comment-face font-lock-comment-delimiter-face)
    ("node" font-lock-type-face) ("generator" font-lock-type-face)
    ("usernode" font-lock-type-face) ("field-type" font-lock-type-face)
    ("control" font-lock-keyword-face) ("keyword" font-lock-keyword-face)
    ("statement" font-lock-keyword-face) ("fields-keyword" font-lock-keyword-face)
    ("conditional" font-lock-keyword-face)
    ("field" font-lock-variable-name-face) ("fieldref" font-lock-variable-name-face)
    ("defname" font-lock-function-name-face) ("noderef" font-lock-function-name-face)
    ("filename" font-lock-string-face) ("string" font-lock-string-face)
    ("number" font-lock-constant-face) ("enum" font-lock-constant-face)
    ("boolean" font-lock-constant-face)
    ("unit" font-lock-builtin-face) ("function" font-lock-builtin-face)
    ("badunit" font-lock-warning-face)
    ("operator" lumeric-operator-face) ("assign" lumeric-operator-face)
    ("userfunction") ("-"))
  "The faces each class of highlight-cases.txt may carry.")

(defun lumeric-test--faces-at (pos)
  (let ((face (get-text-property pos 'face)))
    (if (listp face) face (list face))))

(ert-deftest lumeric-mode-file-types ()
  "A .vlm file opens in lumeric-mode; a .wrl file does not."
  (should (eq (assoc-default "scene.vlm" auto-mode-alist #'string-match) 'lumeric-mode))
  (should-not (eq (assoc-default "scene.wrl" auto-mode-alist #'string-match) 'lumeric-mode)))

(ert-deftest lumeric-mode-highlighting ()
  "Each case of highlight-cases.txt carries its class's face on every character."
  (let ((failures '())
        (case-fold-search nil))
    (with-temp-buffer
      (insert-file-contents (expand-file-name "../highlight-cases.txt" lumeric-test-dir))
      (dolist (line (split-string (buffer-string) "\n" t))
        (unless (string-prefix-p "#" line)
          (pcase-let* ((`(,file ,start ,token ,class) (split-string line " | "))
                       (nth (if (string-match "@\\([0-9]+\\)\\'" token)
                                (string-to-number (match-string 1 token)) 0))
                       (token (replace-regexp-in-string "@[0-9]+\\'" "" token))
                       (wanted (cdr (assoc class lumeric-test-faces))))
            (with-temp-buffer
              (insert-file-contents (expand-file-name (concat "../grammar/" file) lumeric-test-dir))
              (lumeric-mode)
              (font-lock-ensure)
              (goto-char (point-min))
              (if (not (re-search-forward (concat "^[ \t]*" (regexp-quote start)) nil t))
                  (push (format "%s: no such line" line) failures)
                (beginning-of-line)
                (let ((end (line-end-position)))
                  (dotimes (_ (1+ nth)) (search-forward token end t))
                  (let ((from (- (point) (length token))))
                    (cl-loop for pos from from below (point)
                             for faces = (delq nil (lumeric-test--faces-at pos))
                             unless (if wanted (cl-intersection faces wanted) (null faces))
                             do (push (format "%s: %S at column %d" line faces
                                              (- pos (line-beginning-position)))
                                      failures)
                             and return nil)))))))))
    (should (equal (nreverse failures) '()))))

(ert-deftest lumeric-mode-indents-the-examples ()
  "Every example scene, its indentation taken away, is indented as written."
  (should lumeric-test-examples)
  (let ((scenes (directory-files lumeric-test-examples t "\\.vlm\\'")))
    (should scenes)
    (dolist (scene scenes)
      (with-temp-buffer
        (insert-file-contents scene)
        (let ((written (buffer-string)))
          (lumeric-mode)
          (goto-char (point-min))
          (while (re-search-forward "^[ \t]+" nil t) (replace-match ""))
          (indent-region (point-min) (point-max))
          (should (equal (cons scene (buffer-string)) (cons scene written))))))))

(defun lumeric-test--parse (line)
  "What the compilation regexps make of LINE: (FILE LINE SEVERITY MESSAGE), or nil."
  (cl-loop for (name regexp file-group line-group _column type) in lumeric-compilation-regexps
           when (string-match regexp line)
           return (list (match-string file-group line)
                        (and line-group (match-string line-group line))
                        (cond ((match-beginning (car type)) "warning")
                              ((match-beginning (cdr type)) "note")
                              (t "error"))
                        (substring line (match-end 0)))))

(ert-deftest lumeric-mode-compilation-regexps ()
  "The gnu lines give their file, line, severity and message; lines that
name no file give no place."
  (should (memq 'lumeric compilation-error-regexp-alist))
  (should (memq 'lumeric-file compilation-error-regexp-alist))
  (dolist (row (lumeric-test--table "messages/gnu-lines.txt"))
    (pcase-let ((`(,gnu ,file ,line ,severity ,message) row))
      (should (equal (cons gnu (lumeric-test--parse gnu))
                     (cons gnu (and (not (string-empty-p file))
                                    (list file (and (not (string-empty-p line)) line)
                                          severity message))))))))

(ert-deftest lumeric-mode-compilation-buffer ()
  "In a compilation buffer, the messages the command printed for
broken.vlm lead to their file and line, with their severity."
  (should lumeric-test-messages)
  (let ((found '()))
    (with-temp-buffer
      (insert-file-contents lumeric-test-messages)
      (compilation-mode)
      (compilation--ensure-parse (point-max))
      (goto-char (point-min))
      (let ((pos (point-min)))
        (while pos
          (let ((message (get-text-property pos 'compilation-message)))
            (when message
              (let* ((loc (compilation--message->loc message))
                     (file (caar (compilation--loc->file-struct loc))))
                (push (list file (number-to-string (compilation--loc->line loc))
                            (pcase (compilation--message->type message)
                              (2 "error") (1 "warning") (0 "note"))
                            (save-excursion
                              (goto-char pos)
                              (buffer-substring (progn (re-search-forward ": \\(?:error\\|warning\\|note\\): " (line-end-position))
                                                       (point))
                                                (line-end-position))))
                      found)))
            (setq pos (next-single-property-change pos 'compilation-message))))))
    (dolist (wanted (lumeric-test--table "messages/broken-expected.txt"))
      (should (member wanted found)))))

;;; lumeric-mode-test.el ends here
