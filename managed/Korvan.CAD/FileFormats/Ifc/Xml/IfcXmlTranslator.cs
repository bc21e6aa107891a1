using System;
using System.Collections.Generic;
using System.IO;
using System.Text;
using System.Xml;
using System.Xml.Linq;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Ifc.Schema;
using Korvan.CAD.FileFormats.StepText;

namespace Korvan.CAD.FileFormats.Ifc.Xml;

/// <summary>
/// Translates ifcXML of IFC2X3 (ISO 10303-28, version 2, with the configuration i_ifc2x3) into the notation of ISO
/// 10303-21: an element for an instance becomes a record. What comes of it is verified like any other file.
/// </summary>
internal sealed class IfcXmlTranslator(string name, LoadOptions options)
{
    private const string IdAttribute = "id";

    private readonly IfcSchema _schema = IfcSchema.Of(IfcVersion.IFC2X3);
    private readonly StringBuilder _records = new();
    private readonly IfcXmlIds _ids = new();
    private readonly XmlHeaderText _header = new();

    /// <summary>Translates a file.</summary>
    /// <exception cref="ImageLoadException">It is no well-formed XML, or an element has no place in the schema and
    /// damage is not to be ignored.</exception>
    internal byte[] Translate(byte[] data)
    {
        XmlReaderSettings settings = new()
        {
            DtdProcessing = DtdProcessing.Prohibit,
            XmlResolver = null,
            IgnoreComments = true,
            IgnoreWhitespace = true,
            IgnoreProcessingInstructions = true,
        };
        try
        {
            using XmlReader reader = XmlReader.Create(new MemoryStream(data, false), settings);
            Read(reader);
        }
        catch (XmlException e)
        {
            throw new ImageLoadException($"'{name}', line {e.LineNumber}: {e.Message}");
        }

        string text = _header.Text() + _records.ToString() + "ENDSEC;\nEND-ISO-10303-21;\n";
        return Encoding.ASCII.GetBytes(text);
    }

    private void Read(XmlReader reader)
    {
        reader.MoveToContent();
        if (reader.LocalName != "iso_10303_28")
        {
            throw new ImageLoadException($"'{name}': the root element is {reader.Name}, not iso_10303_28.");
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

    // Leaves the reader behind the element.
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
            string message = $"'{name}', line {e.Line}: {e.Message}";
            if (!options.IgnoreErrors)
            {
                throw new ImageLoadException(message, e);
            }

            options.Errors.Add(message);
        }
    }

    // Gives the number of the instance, whose record it writes unless the element only refers to it.
    private long Instance(XElement element, int depth)
    {
        if (depth > StepParser.MaxDepth)
        {
            throw new IfcXmlException(element, $"elements are nested deeper than {StepParser.MaxDepth}.");
        }

        if (element.Attribute("ref") is { } reference)
        {
            return _ids.NumberOf(reference.Value);
        }

        IfcClass one = _schema.FindClass(element.Name.LocalName)
            ?? throw new IfcXmlException(element, $"the schema has no entity {element.Name.LocalName}.");
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
                throw new IfcXmlException(child, $"{one.Name} has no attribute {child.Name.LocalName}.");
            }

            IfcAttributeInfo info = one.Attributes[at];
            values[at] = Value(child, info.Form, info.Shape, depth + 1);
        }

        long id = _ids.NumberOf(element.Attribute(IdAttribute)?.Value);
        _records.Append('#').Append(id).Append('=').Append(one.Keyword).Append('(');
        _records.AppendJoin(',', values).Append(");\n");
        return id;
    }

    // The value that stands within an element, as it is written in a record.
    private string Value(XElement element, SchemaForm form, SchemaShape shape, int depth)
    {
        return shape switch
        {
            SchemaShape.Entity => "#" + Instance(Only(element), depth),
            SchemaShape.Select => Selected(Only(element), depth),
            SchemaShape.Aggregate => List(element, _schema.Table.ElementOf(form), depth),
            _ => IfcXmlValues.Write(shape, element.Value)
                ?? throw new IfcXmlException(element, $"'{element.Value}' is no {form.Describe()}."),
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
            : throw new IfcXmlException(element, $"{element.Name.LocalName} holds no element.");
    }
}
