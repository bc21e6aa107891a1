using System.Collections.Generic;
using System.IO;
using System.Text;
using System.Xml;
using System.Xml.Linq;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Ifc.Schema;
using Korvan.CAD.FileFormats.StepText;
using Korvan.CAD.Input;

namespace Korvan.CAD.FileFormats.Ifc.Xml;

/// <summary>
/// Translates ifcXML of IFC2X3 (ISO 10303-28, version 2, with the configuration i_ifc2x3) into clear text of ISO
/// 10303-21: an element becomes a record. The result is verified like any other file.
/// </summary>
internal sealed class IfcXmlTranslator(string name, LoadOptions options)
{
    private const string IdAttribute = "id";

    private readonly IfcSchema _schema = IfcSchema.Of(IfcVersion.IFC2X3);
    private readonly StringBuilder _records = new();
    private readonly IfcXmlIds _ids = new();
    private readonly XmlHeaderText _header = new();

    /// <summary>Translates a file.</summary>
    /// <exception cref="ImageLoadException">It is not well-formed XML, or an element violates the schema and errors are
    /// not ignored.</exception>
    internal byte[] Translate(byte[] data)
    {
        try
        {
            using XmlReader reader = SafeXml.Open(new MemoryStream(data, false));
            Read(reader);
        }
        catch (XmlException e)
        {
            LoadPlace place = new(name, e.LineNumber);
            throw new ImageLoadException(new LoadDefect(LoadDefectCode.InvalidXml, place, SafeXml.Reason(e)));
        }

        string text = _header.Text() + _records.ToString() + "ENDSEC;\nEND-ISO-10303-21;\n";
        return Encoding.ASCII.GetBytes(text);
    }

    private void Read(XmlReader reader)
    {
        reader.MoveToContent();
        if (reader.LocalName != "iso_10303_28")
        {
            string cause = $"the root element is {reader.Name}, not iso_10303_28";
            throw new ImageLoadException(new LoadDefect(LoadDefectCode.InvalidXml, new LoadPlace(name), cause));
        }

        reader.Read();
        while (reader.NodeType != XmlNodeType.EndElement && !reader.EOF)
        {
            if (reader.NodeType != XmlNodeType.Element)
            {
                reader.Read();
            }
            else if (reader.LocalName == "iso_10303_28_header")
            {
                _header.Take(ReadElement(reader));
            }
            else if (reader.LocalName == "uos")
            {
                ReadInstances(reader);
            }
            else
            {
                reader.Skip();
            }
        }
    }

    private void ReadInstances(XmlReader reader)
    {
        bool isEmpty = reader.IsEmptyElement;
        reader.Read();
        while (!isEmpty && reader.NodeType != XmlNodeType.EndElement && !reader.EOF)
        {
            if (reader.NodeType == XmlNodeType.Element)
            {
                TakeInstance(ReadElement(reader));
            }
            else
            {
                reader.Read();
            }
        }

        reader.Read();
    }

    // Leaves the reader after the element.
    private static XElement ReadElement(XmlReader reader)
    {
        XElement element;
        using (XmlReader subtree = reader.ReadSubtree())
        {
            element = XElement.Load(subtree, System.Xml.Linq.LoadOptions.SetLineInfo);
        }

        reader.Read();
        return element;
    }

    private void TakeInstance(XElement element)
    {
        int length = _records.Length;
        try
        {
            Instance(element, 0);
        }
        catch (IfcXmlException e)
        {
            _records.Length = length;
            LoadDefect defect = new(e.Code, new LoadPlace(name, e.Line), e.Message);
            if (!options.IgnoreErrors)
            {
                throw new ImageLoadException(defect, e);
            }

            options.Report(defect);
        }
    }

    // Returns the number of the instance, and writes its record unless the element is only a reference.
    private long Instance(XElement element, int depth)
    {
        if (depth > StepParser.MaxDepth)
        {
            throw new IfcXmlException(
                LoadDefectCode.NestedTooDeep, element, $"elements are nested deeper than {StepParser.MaxDepth} levels");
        }

        if (element.Attribute("ref") is { } reference)
        {
            return _ids.NumberOf(reference.Value);
        }

        IfcClass one = _schema.FindClass(element.Name.LocalName)
            ?? throw new IfcXmlException(
                LoadDefectCode.UnknownEntity, element, $"the schema has no entity {element.Name.LocalName}");
        string[] values = new string[one.Attributes.Length];
        for (int i = 0; i < values.Length; i++)
        {
            values[i] = one.Attributes[i].IsDerived ? "*" : "$";
        }

        foreach (XElement child in element.Elements())
        {
            int at = one.AttributeNumber(child.Name.LocalName);
            if (at < 0)
            {
                throw new IfcXmlException(
                    LoadDefectCode.UnknownAttribute, child, $"{one.Name} has no attribute {child.Name.LocalName}");
            }

            IfcAttributeInfo info = one.Attributes[at];
            values[at] = Value(child, info.Form, info.Shape, depth + 1);
        }

        long id = _ids.NumberOf(element.Attribute(IdAttribute)?.Value);
        _records.Append('#').Append(id).Append('=').Append(one.Keyword).Append('(');
        _records.AppendJoin(',', values).Append(");\n");
        return id;
    }

    // The value of an element in the syntax of records.
    private string Value(XElement element, SchemaForm form, SchemaShape shape, int depth)
    {
        return shape switch
        {
            SchemaShape.Entity => "#" + Instance(Only(element), depth),
            SchemaShape.Select => Selected(Only(element), depth),
            SchemaShape.Aggregate => List(element, _schema.Table.ElementOf(form), depth),
            _ => IfcXmlValues.Write(shape, element.Value)
                ?? throw new IfcXmlException(
                    LoadDefectCode.WrongType, element, $"'{element.Value}' is no {form.Describe()}"),
        };
    }

    private string Selected(XElement element, int depth)
    {
        if (_schema.TypeNameOf(element.Name.LocalName) is not { } typeName)
        {
            return "#" + Instance(element, depth);
        }

        SchemaForm form = SchemaForm.Parse(typeName);
        string value = Value(element, form, _schema.Table.ShapeOf(form), depth + 1);
        return $"{typeName.ToUpperInvariant()}({value})";
    }

    private string List(XElement element, SchemaForm form, int depth)
    {
        SchemaShape shape = _schema.Table.ShapeOf(form);
        List<string> items = [];
        foreach (XElement child in IfcXmlValues.InOrder(element))
        {
            items.Add(shape switch
            {
                SchemaShape.Entity => "#" + Instance(child, depth + 1),
                SchemaShape.Select => Selected(child, depth + 1),
                _ => Value(child, form, shape, depth + 1),
            });
        }

        return "(" + string.Join(',', items) + ")";
    }

    private static XElement Only(XElement element)
    {
        using IEnumerator<XElement> children = element.Elements().GetEnumerator();
        return children.MoveNext()
            ? children.Current
            : throw new IfcXmlException(
                LoadDefectCode.WrongType, element, $"{element.Name.LocalName} holds no element");
    }
}
