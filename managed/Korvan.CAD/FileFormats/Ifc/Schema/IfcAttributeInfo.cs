namespace Korvan.CAD.FileFormats.Ifc.Schema;

/// <summary>An attribute of a class; inherited attributes come first.</summary>
/// <param name="Name">The name in the schema.</param>
/// <param name="Owner">The entity that declares it.</param>
/// <param name="IsOptional">Whether it may be left out.</param>
/// <param name="IsDerived">Whether it is derived, so that a file has an asterisk in its place.</param>
/// <param name="Form">Its type as the schema states it.</param>
/// <param name="Shape">The kind of its values.</param>
internal sealed record IfcAttributeInfo(
    string Name, string Owner, bool IsOptional, bool IsDerived, SchemaForm Form, SchemaShape Shape);

/// <summary>An inverse attribute with the range of classes and the attribute that it inverts.</summary>
/// <param name="Name">The name in the schema.</param>
/// <param name="Referrer">The class of the instances that refer.</param>
/// <param name="Attribute">The index of the attribute through which they refer.</param>
/// <param name="IsSingle">Whether there is exactly one.</param>
internal sealed record IfcInverseInfo(string Name, IfcClass Referrer, int Attribute, bool IsSingle);
