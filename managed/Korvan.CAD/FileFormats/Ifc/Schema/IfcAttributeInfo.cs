namespace Korvan.CAD.FileFormats.Ifc.Schema;

/// <summary>An attribute as a class of instances has it: in its place among all, inherited ones first.</summary>
/// <param name="Name">The name in the schema.</param>
/// <param name="Owner">The entity that declares it.</param>
/// <param name="IsOptional">Whether it may be left out.</param>
/// <param name="IsDerived">Whether it follows from others, so that a file has an asterisk in its place.</param>
/// <param name="Form">Its type as the schema states it.</param>
/// <param name="Shape">What its values are.</param>
internal sealed record IfcAttributeInfo(
    string Name, string Owner, bool IsOptional, bool IsDerived, SchemaForm Form, SchemaShape Shape);

/// <summary>An inverse attribute with the range of classes and the attribute that it inverts.</summary>
/// <param name="Name">The name in the schema.</param>
/// <param name="Referrer">The class of the instances that refer.</param>
/// <param name="Attribute">The number of the attribute through which they refer.</param>
/// <param name="IsSingle">Whether there is exactly one.</param>
internal sealed record IfcInverseInfo(string Name, IfcClass Referrer, int Attribute, bool IsSingle);
