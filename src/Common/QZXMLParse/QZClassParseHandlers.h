// The handlers of the class file's elements: each takes the element that just ended, turns its subtree into
// a record, and deletes it from the tree.
#ifndef GRADIX_QZCLASSPARSEHANDLERS_H
#define GRADIX_QZCLASSPARSEHANDLERS_H

class cXmlParserContext;

// This one's text goes into the report.
bool _HandleClassName(cXmlParserContext* context);

// These append to the class record.
bool _HandlePreferences(cXmlParserContext* context);
bool _HandleStudent(cXmlParserContext* context);
bool _HandleAssignment(cXmlParserContext* context);

// These append to the pending assignment; an ended list closes it to further lists of its kind.
bool _HandleQuestion(cXmlParserContext* context);
bool _HandleQuestionList(cXmlParserContext* context);
bool _HandleResponse(cXmlParserContext* context);
bool _HandleResponseList(cXmlParserContext* context);
bool _HandleResults(cXmlParserContext* context);
bool _HandleResultsList(cXmlParserContext* context);

#endif  // GRADIX_QZCLASSPARSEHANDLERS_H
