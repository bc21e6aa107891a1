using System;
using System.Linq;
using Korvan.WrpGen.Interop;
using Xunit;

namespace Korvan.WrpGen.Tests.Runtime;

[Collection(nameof(FakePython))]
public class FailureTests
{
    [Fact]
    public void AFailureIsItsTypeAndItsMessages()
    {
        var inner = new FormatException("inner", new ArgumentException("core"));
        var failure = new InvalidOperationException("outer", inner);
        Assert.Equal(-1, Boundary.Failed(failure));
        Assert.Equal(
            ("InvalidOperationException", "outer ---> FormatException: inner ---> ArgumentException: core"),
            FakePython.Failure);
    }

    [Fact]
    public void ADeepFailureStillNamesItsCause()
    {
        Exception failure = Enumerable.Range(0, 500)
            .Aggregate(new Exception("cause"), (inner, depth) => new Exception($"level {depth}", inner));
        Boundary.Fail(failure);
        Assert.StartsWith("level 499 ---> ", FakePython.Failure.Text);
        Assert.EndsWith(" ---> ... ---> Exception: cause", FakePython.Failure.Text);
    }

    [Fact]
    public void APythonErrorComesAsItsText()
    {
        FakePython.PendingError = "ValueError: no";
        Assert.Equal("ValueError: no", Assert.Throws<PythonException>(Boundary.ThrowPythonError).Message);
        Assert.Null(FakePython.PendingError);
        Assert.NotEmpty(Assert.Throws<PythonException>(Boundary.ThrowPythonError).Message); // with no text to be had
    }
}
