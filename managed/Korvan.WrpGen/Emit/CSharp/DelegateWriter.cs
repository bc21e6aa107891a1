using System.Collections.Generic;
using System.Linq;
using Korvan.WrpGen.Model;

namespace Korvan.WrpGen.Emit.CSharp;

/// <summary>Writes the exported functions of one bound type's members.</summary>
internal sealed class DelegateWriter(CodeWriter writer, TypeModel type)
{
    private const string Instance = "nint self";

    // What becomes of Python objects behind a function's arguments: the names of the interop's own makers.
    private enum Scope
    {
        None,
        Lending,
        Keeping,
    }

    public void Constructor(MethodModel constructor)
    {
        ValueUse made = Self();
        string call = $"new {type.CSharpName}({Arguments(constructor)})";
        Call(constructor, made, call, leading: [], keeps: true);
    }

    public void Method(MethodModel method)
    {
        string target = method.IsStatic ? type.CSharpName : Target();
        string call = $"{target}.{Escape(method.ManagedName)}({Arguments(method)})";
        Call(method, method.Result, call, method.IsStatic ? [] : [Instance], keeps: false);
    }

    public void Getter(PropertyModel property)
    {
        string expression = $"{Target(property)}.{Escape(property.ManagedName)}";
        IEnumerable<string> parameters = [.. Leading(property), .. CSharpValues.Results(property.Value)];
        Export(property.Getter, CSharpValues.ReturnType(property.Value), parameters, () =>
        {
            foreach (string line in CSharpValues.Deliver(property.Value, expression))
            {
                writer.Line(line);
            }
        });
    }

    public void Setter(PropertyModel property)
    {
        IEnumerable<string> parameters = [.. Leading(property), .. CSharpValues.Arguments(property.Value, "value")];
        Scope scope = CSharpValues.NeedsScope(property.Value) ? Scope.Keeping : Scope.None;
        Export(property.Setter, "void", parameters, () =>
        {
            string place = $"{type.QualifiedName}.{property.PythonName}";
            string value = CSharpValues.ReadGiven(property.Given, "value", place);
            writer.Line($"{Target(property)}.{Escape(property.ManagedName)} = {value};");
        }, scope);
    }

    /// <summary>The indexer's own failures are told from an index out of range by their type.</summary>
    public void Indexer(IndexerModel indexer)
    {
        string native = CSharpValues.RecordType(indexer.Value) ?? CSharpValues.NativeType(indexer.Value);
        Status("btp_SqGetItem", [Instance, "int index", $"{native}* result"],
            CSharpValues.RecordType(indexer.Value) is null
                ? $"*result = {CSharpValues.Write(indexer.Value, $"{Target()}[index]")};"
                : CSharpValues.Deliver(indexer.Value, $"{Target()}[index]").Single());
        if (indexer.CanWrite)
        {
            Status("btp_SqSetItem", [Instance, "int index", .. CSharpValues.Arguments(indexer.Value, "value")],
                $"{Target()}[index] = {CSharpValues.Read(indexer.Value, "value")};");
        }
    }

    /// <summary>An exported function that does no more than hand on.</summary>
    public void Forward(string name, string result, IEnumerable<string> parameters, string call)
    {
        writer.Line("[UnmanagedCallersOnly]");
        writer.Line($"public static {result} {name}({string.Join(", ", parameters)}) => {call};");
        writer.Line();
    }

    private void Call(
        MethodModel method, ValueUse result, string call, IReadOnlyList<string> leading, bool keeps)
    {
        IEnumerable<string> parameters =
        [
            .. leading,
            .. method.Parameters.SelectMany((parameter, at) => Native(parameter, $"a{at}")),
            .. CSharpValues.Results(result),
        ];
        bool hasScope = method.Parameters.Any(p => p.Passing != Passing.Out && CSharpValues.NeedsScope(p.Value));
        Export(method.Delegate, CSharpValues.ReturnType(result), parameters, () =>
        {
            Locals(method);
            Body(method, result, call, hasScope && !keeps);
        }, !hasScope ? Scope.None : keeps ? Scope.Keeping : Scope.Lending);
    }

    private void Body(MethodModel method, ValueUse result, string call, bool lends)
    {
        bool hasOut = method.Parameters.Any(parameter => parameter.Passing != Passing.In);
        string expression = call;
        if ((lends || hasOut) && result.Kind != ValueKind.Void)
        {
            writer.Line($"var outcome = {call};");
            expression = "outcome";
        }
        else if (lends || hasOut)
        {
            writer.Line($"{call};");
            expression = "";
        }
        if (lends)
        {
            writer.Line("scope.Complete();");
        }
        StoreOut(method);
        foreach (string line in expression.Length == 0 ? [] : CSharpValues.Deliver(result, expression))
        {
            writer.Line(line);
        }
    }

    // A by-reference argument crosses as what goes in, where anything does, and where to put the rest.
    private static IEnumerable<string> Native(ParameterModel parameter, string name)
    {
        IEnumerable<string> arguments = parameter.Passing == Passing.Out
            ? []
            : CSharpValues.Arguments(parameter.Value, name);
        return parameter.Passing == Passing.In
            ? arguments
            : arguments.Append($"{CSharpValues.NativeType(parameter.Value)}* {name}_out");
    }

    private void Locals(MethodModel method)
    {
        for (int at = 0; at < method.Parameters.Count; at++)
        {
            ParameterModel parameter = method.Parameters[at];
            if (parameter.Passing == Passing.Ref)
            {
                writer.Line($"{parameter.Value.CSharpName} v{at} = {CSharpValues.Read(parameter.Value, $"a{at}")};");
            }
            else if (parameter.Passing == Passing.Out)
            {
                writer.Line($"{parameter.Value.CSharpName} v{at};");
            }
        }
    }

    private void StoreOut(MethodModel method)
    {
        for (int at = 0; at < method.Parameters.Count; at++)
        {
            if (method.Parameters[at].Passing != Passing.In)
            {
                writer.Line($"*a{at}_out = {CSharpValues.Write(method.Parameters[at].Value, $"v{at}")};");
            }
        }
    }

    private string Arguments(MethodModel method)
    {
        string called = method.IsConstructor ? type.QualifiedName : $"{type.QualifiedName}.{method.PythonName}";
        return string.Join(", ", method.Parameters.Select((parameter, at) => parameter.Passing switch
        {
            Passing.Ref => $"ref v{at}",
            Passing.Out => $"out v{at}",
            _ => CSharpValues.ReadGiven(parameter.Value, $"a{at}", $"{called}: {parameter.PythonName}"),
        }));
    }

    private void Export(
        string name, string result, IEnumerable<string> parameters, System.Action body, Scope scope = Scope.None)
    {
        writer.Line("[UnmanagedCallersOnly]");
        writer.Block($"public static {result} {name}({string.Join(", ", parameters)})", () =>
        {
            if (scope != Scope.None)
            {
                writer.Line($"PyScope scope = PyScope.{scope}();");
            }
            writer.Block("try", body);
            string fail = scope != Scope.None ? "scope.Fail(e);" : "Boundary.Fail(e);";
            writer.Line(result == "void"
                ? $"catch (Exception e) {{ {fail} }}"
                : $"catch (Exception e) {{ {fail} return default; }}");
            if (scope != Scope.None)
            {
                writer.Line("finally { scope.End(); }");
            }
        });
        writer.Line();
    }

    private void Status(string name, IEnumerable<string> parameters, string statement)
    {
        writer.Line("[UnmanagedCallersOnly]");
        writer.Block($"public static int {name}({string.Join(", ", parameters)})", () =>
        {
            bool keeps = statement.Contains("scope.");
            if (keeps)
            {
                writer.Line("PyScope scope = PyScope.Keeping();");
            }
            writer.Line($"try {{ {statement} return Status.Item; }}");
            writer.Line("catch (ArgumentOutOfRangeException) { return Status.OutOfRange; }");
            writer.Line("catch (IndexOutOfRangeException) { return Status.OutOfRange; }");
            string failed = keeps ? "scope.Fail(e); return Status.Failed;" : "return Boundary.Failed(e);";
            writer.Line($"catch (Exception e) {{ {failed} }}");
            if (keeps)
            {
                writer.Line("finally { scope.End(); }");
            }
        });
        writer.Line();
    }

    private static IEnumerable<string> Leading(PropertyModel property) => property.IsStatic ? [] : [Instance];

    private string Target(PropertyModel property) => property.IsStatic ? type.CSharpName : Target();

    private string Target() => type.Kind == BoundKind.Struct
        ? $"Handles.SelfStruct<{type.CSharpName}>(self)"
        : $"(({type.CSharpName})(Handles.Target(self) ?? Handles.Missing<{type.CSharpName}>()))";

    private ValueUse Self() => new(
        type.Kind == BoundKind.Struct ? ValueKind.Struct : ValueKind.Class, type.ManagedName, type.CSharpName);

    private static string Escape(string name) => "@" + name;
}
