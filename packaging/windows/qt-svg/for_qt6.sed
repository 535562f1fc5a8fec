# What the module of Qt 5 says otherwise with Qt 6.
/<QtGui\/qmatrix.h>/d
/^static qreal toDouble(const QChar/,/^}/s/int pos = 0;/int pos = 0; if (!str) return 0.0;/
s/\bQMatrix\b/QTransform/
s/\.toAffine()//
s/QXmlStreamStringRef name;/QString name;/
s/QXmlStreamStringRef value;/QString value;/
s/QXmlStreamStringRef(\(name\))/\1.toString()/
s/QXmlStreamStringRef(QStringRef(&value, 0, value.length()))/value/
s/QXmlStreamStringRef(QStringRef(&sym.text, sym.start, len))/sym.text.mid(sym.start, len)/
s/QStringRef(&key, 0, key.length())/QStringView(key)/
s/QStringRef(&sym.text, sym.start, sym.len)/QStringView(sym.text).mid(sym.start, sym.len)/
s/QStringRef str(&instr)/QStringView str(instr)/
s/QStringRef \([a-z]*Ref\)(\([a-z.]*\)\.string(), [a-z.]*\.position() + \([0-9]*\), .*);/QStringView \1 = \2.mid(\3);/
s/QStringRef(\([A-Za-z.]*\)\.string(), [A-Za-z.]*\.position() + \([a-z0-9]*\), \([a-z0-9]*\))/\1.mid(\2, \3)/
s/QStringRef(\([A-Za-z.]*\)\.string(), [A-Za-z.]*\.position(), \([0-9]*\))/\1.left(\2)/
s/str\.string()->constData() + str\.position()/str.data()/
s/colorStrTr\.unicode()/colorStrTr.data()/
s/? 0 : uncStr\.at(0)/? QChar() : uncStr.at(0)/
s/\*const_cast<QChar \*>(end) = 0;/*const_cast<QChar *>(end) = QChar();/
s/unicode = 0;/unicode = QChar();/
s/SVGToQtWeight(states\.fontWeight)/QFont::Weight(SVGToQtWeight(states.fontWeight))/
s/QString attribute(NodePtr node, const QString &name) const override/QString attributeValue(NodePtr node, const QCss::AttributeSelector \&selector) const override/
s/(name == QLatin1String("id") ||/(selector.name == QLatin1String("id") ||/
s/^\( *\)name == QLatin1String("xml:id"))))/\1selector.name == QLatin1String("xml:id"))))/
s/xmlClass().isEmpty() && name ==/xmlClass().isEmpty() \&\& selector.name ==/
s/\bQStringRef(&\([a-z]*\))/QStringView(\1)/
s/QStringRef(&\([a-z]*\), \([^,]*\), \(.*\))/QStringView(\1).mid(\2, \3)/
s/QStringRef ref(&name, 1, name.length() - 1);/QStringView ref = QStringView(name).mid(1);/
s/QStringRef/QStringView/g
