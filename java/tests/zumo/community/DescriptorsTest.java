package zumo.community;

import static java.lang.invoke.MethodType.fromMethodDescriptorString;
import static java.lang.invoke.MethodType.methodType;
import static org.junit.Assert.assertEquals;

import java.lang.invoke.MethodHandles;
import java.lang.reflect.Modifier;
import java.util.Arrays;
import java.util.Map;
import java.util.TreeMap;
import org.junit.Test;

/** The names and descriptors by which native code and these classes know each other. */
public class DescriptorsTest {
  private static final ClassLoader LOADER = DescriptorsTest.class.getClassLoader();

  private static final String[][] CALLED_BY_NATIVE_CODE = {
    {"OutParams", "<init>", "()V"},
    {"OutParams", "setInParams", "(Lzumo/community/InParams;)V"},
    {"OutParams", "addClique", "(Lzumo/community/Clique;I)V"},
    {"OutParams", "addCommunity", "(Lzumo/community/Community;)V"},
    {"OutParams", "addVertexToCommunity", "(Lzumo/community/Community;Ljava/lang/String;)V"},
    {"OutParams", "addCliqueToCommunity", "(Lzumo/community/Community;I)V"},
    {"OutParams", "addCommunityGrafEdge", "(IIII)V"},
    {"OutParams", "addDistribution", "(IIILjava/lang/String;)V"},
    {"InParams", "<init>", "()V"},
    {"InParams", "addEdge", "(Ljava/lang/String;Ljava/lang/String;)V"},
    {"Clique", "<init>", "(Z)V"},
    {"Clique", "addVertex", "(Ljava/lang/String;)V"},
    {"Community", "<init>", "(Z)V"},
    {"Community", "setSize", "(I)V"},
    {"Community", "addEdge", "(Lzumo/community/Edge;)V"},
    {"Edge", "<init>", "(Ljava/lang/String;Ljava/lang/String;Z)V"},
    {"Edge", "getVertex1", "()Ljava/lang/String;"},
    {"Edge", "getVertex2", "()Ljava/lang/String;"},
  };

  @Test
  public void nativeCodeFindsEveryMethod() throws ReflectiveOperationException {
    for (String[] row : CALLED_BY_NATIVE_CODE) {
      Class<?> owner = Class.forName("zumo.community." + row[0]);
      if (row[1].equals("<init>"))
        MethodHandles.publicLookup().findConstructor(
            owner, fromMethodDescriptorString(row[2], LOADER));
      else
        MethodHandles.publicLookup().findVirtual(
            owner, row[1], fromMethodDescriptorString(row[2], LOADER));
    }
  }

  @Test
  public void javaFindsEveryNativeFunction() throws ReflectiveOperationException {
    String run = "(Ljava/lang/String;Ljava/lang/String;ZZDZDZDZIZD)Lzumo/community/OutParams;";
    Map<String, String> natives = new TreeMap<>();
    Class<?> calls = Class.forName("zumo.community.ExternalCalls", false, LOADER);
    Arrays.stream(calls.getDeclaredMethods())
        .filter(method -> Modifier.isNative(method.getModifiers()))
        .forEach(method -> natives.put(method.getName(),
            methodType(method.getReturnType(), method.getParameterTypes()).descriptorString()));
    assertEquals(new TreeMap<>(Map.of(
        "Find_coms", run,
        "findAndLoadComs", run,
        "loadComs", "(Ljava/lang/String;ZZ)Lzumo/community/OutParams;",
        "Stop_process", "()V",
        "Reset_stop_process", "()V",
        "Read_state_report", "()Ljava/lang/String;",
        "Read_error_message", "()Ljava/lang/String;")), natives);
  }
}
