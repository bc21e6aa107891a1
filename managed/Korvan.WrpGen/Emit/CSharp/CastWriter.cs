using System.Linq;
using Korvan.WrpGen.Model;

namespace Korvan.WrpGen.Emit.CSharp;

/// <summary>Writes the cast delegates of a bound type.</summary>
internal sealed class CastWriter(CodeWriter writer, DelegateWriter delegates, TypeModel type)
{
    private readonly string _name = type.CSharpName;

    public void Write()
    {
        delegates.Forward("btp_TypeOf", "int", ["nint* type"], $"Casts.TypeOf(typeof({_name}), type)");
        switch (type.Kind)
        {
            case BoundKind.StaticClass:
                break;
            case BoundKind.Enum:
                WriteEnum();
                break;
            case BoundKind.Struct:
                Record("btp_CastTo", $"Casts.ToStruct<{_name}>(value, result)");
                WriteCastFrom();
                Handle("btp_ReInterpretObj", $"Casts.ReinterpretStruct<{_name}>(handle, result)");
                Record("btp_CastAs", $"Casts.ToStruct<{_name}>(value, result)");
                WriteIsAssignable();
                break;
            case BoundKind.Interface:
                // There may be a struct behind it, of which a cast gives a copy.
                WriteReferenceCast("btp_CastTo", "VariantArg* value", "References.Target(value)", "null or ");
                WriteReferenceCast("btp_CastAs", "VariantArg* value", "References.Target(value)", "");
                WriteIsAssignable();
                break;
            default:
                WriteReferenceCast("btp_CastTo", "VariantArg* value", "Handles.Target(value->Value)", "null or ");
                WriteCastFrom();
                Handle("btp_ReInterpretObj", $"Casts.ReinterpretReference<{_name}>(handle, result)");
                WriteReferenceCast("btp_CastAs", "nint handle", "Handles.TargetOfEither(handle)", "");
                WriteIsAssignable();
                break;
        }
    }

    private void WriteEnum()
    {
        string value = CSharpValues.NativeType(type.Underlying!);
        string both = $"<{_name}, {value}>";
        delegates.Forward("btp_CastTo", "int", ["VariantArg* value", $"{value}* result"],
            $"Casts.ToEnum{both}((nint)value, result)");
        delegates.Forward("btp_ReInterpretObj", "int", ["nint handle", $"{value}* result"],
            $"Casts.ReinterpretEnum{both}(handle, result)");
        delegates.Forward("btp_AsUniEnum", "int", [$"{value} value", "nint* result"],
            $"Casts.BoxEnum(({_name})value, result)");
        delegates.Forward("btp_CastAs", "int", ["nint handle", $"{value}* result"],
            $"Casts.ToEnum{both}(handle, result)");
        WriteIsAssignable();
        delegates.Forward("btp_GetType", "int", [$"{value} value", "nint* type"],
            $"Casts.TypeOf(typeof({_name}), type)");
    }

    private void WriteIsAssignable() =>
        delegates.Forward("btp_IsAssignable", "int", ["nint value"], $"Casts.IsAssignable<{_name}>(value)");

    private void WriteCastFrom()
    {
        if (type.Conversions.Count == 0)
        {
            return;
        }
        writer.Line("[UnmanagedCallersOnly]");
        writer.Block("public static int btp_CastFrom(nint self, nint type, nint* result)", () =>
        {
            writer.Block("try", () =>
            {
                string self = type.Kind == BoundKind.Struct ? "SelfStruct" : "Self";
                writer.Line($"{_name} value = Handles.{self}<{_name}>(self);");
                writer.Line("Type target = Handles.Self<Type>(type);");
                foreach (string conversion in type.Conversions.Distinct())
                {
                    writer.Line($"if (target == typeof({conversion})) {{ " +
                        $"return Casts.Converted(({conversion})value, result); }}");
                }
                writer.Line("return Status.CastNo;");
            });
            writer.Line("catch (Exception e) { return Boundary.Failed(e); }");
        });
        writer.Line();
    }

    // The test of the type stands here, not in a generic method: of a constant it is a comparison of two words.
    // Only btp_CastTo takes a null, and hands over one.
    private void WriteReferenceCast(string name, string parameter, string target, string orNull) =>
        delegates.Forward(name, "int", [parameter, "nint* result"],
            $"{target} is var target && target is {orNull}{_name} ? Casts.Deliver(target, result) : Status.CastNo");

    private void Record(string name, string call) =>
        delegates.Forward(name, "int", ["VariantArg* value", "nint* result"], call);

    private void Handle(string name, string call) =>
        delegates.Forward(name, "int", ["nint handle", "nint* result"], call);
}
