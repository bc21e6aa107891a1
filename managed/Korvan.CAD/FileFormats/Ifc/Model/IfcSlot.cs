using Korvan.CAD.FileFormats.Ifc.Schema;

namespace Korvan.CAD.FileFormats.Ifc.Model;

/// <summary>What may stand in a place: an attribute, or the elements of a list somewhere in one.</summary>
/// <param name="Schema">The edition.</param>
/// <param name="Attribute">The attribute that the place belongs to; -1 for a value that stands alone.</param>
/// <param name="Form">The type of the values.</param>
/// <param name="Shape">What they are.</param>
internal readonly record struct IfcSlot(IfcSchema Schema, int Attribute, SchemaForm Form, SchemaShape Shape)
{
    /// <summary>Gets what the elements are, of a place of lists.</summary>
    internal IfcSlot Element
    {
        get
        {
            SchemaForm element = Schema.Table.ElementOf(Form);
            return new IfcSlot(Schema, Attribute, element, Schema.Table.ShapeOf(element));
        }
    }

    internal static IfcSlot Of(IfcClass one, int attribute)
    {
        IfcAttributeInfo info = one.Attributes[attribute];
        return new IfcSlot(one.Schema, attribute, info.Form, info.Shape);
    }

    /// <summary>Gives the place of values of a defined type.</summary>
    internal static IfcSlot Of(IfcSchema schema, string typeName, int attribute)
    {
        SchemaForm form = SchemaForm.Parse(typeName);
        return new IfcSlot(schema, attribute, form, schema.Table.ShapeOf(form));
    }

    /// <summary>Gives the enumeration behind the names of defined types.</summary>
    internal string EnumerationName()
    {
        SchemaForm form = Form;
        while (Schema.Table.DefinedTypes.TryGetValue(form.Name, out SchemaDefinedType? defined))
        {
            form = defined.Form;
        }

        return form.Name;
    }
}
