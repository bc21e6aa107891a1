namespace Korvan.CAD.FileFormats.Ifc;

/// <summary>A value of a named type of the schema: an entity or a defined type.</summary>
public interface IIfcType
{
    /// <summary>Gets the name in the schema, such as IfcLabel or IfcWall.</summary>
    string TypeName { get; }

    /// <summary>Gets the value without its type: a text, a number, a truth value, bytes or a list. A logical value
    /// that is unknown gives nothing, an entity gives itself.</summary>
    object? PlainValue { get; }
}
