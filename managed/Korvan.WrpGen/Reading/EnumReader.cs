using System;
using System.Linq;
using System.Reflection;
using Korvan.WrpGen.Model;
using Korvan.WrpGen.Naming;

namespace Korvan.WrpGen.Reading;

/// <summary>Reads an enum: its members in the order of declaration, its width and its Python kind.</summary>
internal sealed class EnumReader(Type type, TypeModel model, XmlDocs docs)
{
    public void Read()
    {
        Type underlying = type.GetFields(BindingFlags.Instance | BindingFlags.Public | BindingFlags.NonPublic)[0]
            .FieldType;
        model.Underlying = new ValueUse(KindOf(underlying.Name), underlying.FullName!, underlying.CSharpName());
        model.IsIntegerEnum = IsInteger();
        foreach (FieldInfo field in type.GetFields(BindingFlags.Public | BindingFlags.Static).InOrder())
        {
            model.EnumMembers.Add(new EnumMemberModel(
                PythonName.Upper(field.Name), Bits(field.GetRawConstantValue()!), docs.Of(DocId.Of(field))));
        }
    }

    private bool IsInteger()
    {
        CustomAttributeTypedArgument? kind = type.Find("PythonEnumAttribute")?.ConstructorArguments.FirstOrDefault();
        if (kind is not { Value: { } value })
        {
            return false;
        }
        return kind.Value.ArgumentType.GetFields(BindingFlags.Public | BindingFlags.Static)
            .Any(field => field.Name == "Integer" && Equals(field.GetRawConstantValue(), value));
    }

    private static ValueKind KindOf(string name) => Enum.Parse<ValueKind>(name);

    private static long Bits(object value) => value is ulong unsigned ? (long)unsigned : Convert.ToInt64(value);
}
