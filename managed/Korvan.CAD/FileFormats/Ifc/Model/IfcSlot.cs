using Korvan.CAD.FileFormats.Ifc.Schema;

namespace Korvan.CAD.FileFormats.Ifc.Model;

/// <summary>The type of a value: of an attribute, or of the elements of a list within one.</summary>
/// <param name="Schema">The schema.</param>
/// <param name="Attribute">The attribute that the place belongs to; -1 for a value outside of all instances.</param>
/// <param name="Form">The type of the values.</param>
/// <param name="Shape">The kind of the values.</param>
internal readonly record struct IfcSlot(IfcSchema Schema, int Attribute, SchemaForm Form, SchemaShape Shape)
{
    /// <summary>Gets the slot of the elements of a list.</summary>
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

    /// <summary>Returns the slot of values of a defined type.</summary>
    internal static IfcSlot Of(IfcSchema schema, string typeName, int attribute)
    {
        SchemaForm form = SchemaForm.Parse(typeName);
        return new IfcSlot(schema, attribute, form, schema.Table.ShapeOf(form));
    }

    /// <summary>Returns the enumeration that the names of defined types resolve to.</summary>
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
