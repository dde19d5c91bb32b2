<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>AboutInformation</name>
    <message>
        <location filename="../../src/sysinfo/aboutinformation.cpp" line="+15"/>
        <source>%1 (built with %2)</source>
        <translation>%1（使用 %2 构建）</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>Licences</source>
        <translation>许可证</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Product</source>
        <translation>产品</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Camera API version</source>
        <translation>相机 API 版本</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Camera API library</source>
        <translation>相机 API 库</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Qt version</source>
        <translation>Qt 版本</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Build</source>
        <translation>构建</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>sanitizers: %1</source>
        <translation>Sanitizer：%1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>assertions on</source>
        <translation>已启用断言</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Qt %1</source>
        <translation>Qt %1</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>GNU Lesser General Public License, version 3</source>
        <translation>GNU 宽通用公共许可证（LGPL）第 3 版</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>This program uses the Qt libraries (Core, Gui, Widgets, Network, D-Bus, Concurrent) under the terms of the GNU Lesser General Public License version 3. Qt is a trademark of The Qt Company Ltd. The libraries are linked dynamically; they can be replaced by modified versions. Their source code is available from the distribution&apos;s source packages.</source>
        <translation>本程序依据 GNU 宽通用公共许可证（LGPL）第 3 版的条款使用 Qt 库（Core、Gui、Widgets、Network、D-Bus、Concurrent）。Qt 是 The Qt Company Ltd. 的商标。这些库以动态方式链接，可替换为修改后的版本。其源代码可从发行版的源代码包中获取。</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Boost %1</source>
        <translation>Boost %1</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Boost Software License, version 1.0</source>
        <translation>Boost 软件许可证 1.0 版</translation>
    </message>
</context>
<context>
    <name>AboutPage</name>
    <message>
        <location filename="../../src/sysinfo/widgets/aboutpage.cpp" line="+24"/>
        <source>Licences of the libraries this program uses:</source>
        <translation>本程序所用库的许可证：</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
</context>
<context>
    <name>AdapterDiagnosis</name>
    <message>
        <location filename="../../src/network/adapterdiagnosis.cpp" line="+18"/>
        <source>%1 Gbit/s</source>
        <translation>%1 Gbit/s</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 Mbit/s</source>
        <translation>%1 Mbit/s</translation>
    </message>
    <message>
        <location line="+67"/>
        <source>Switched off</source>
        <translation>已关闭</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>No link</source>
        <translation>无链路</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Link up at %1</source>
        <translation>链路已连接，%1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Link up</source>
        <translation>链路已连接</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>no IPv4 address</source>
        <translation>无 IPv4 地址</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1; %2, %3; MTU %4; %5</source>
        <translation>%1；%2，%3；MTU %4；%5</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>DHCP</source>
        <translation>DHCP</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>static</source>
        <translation>静态</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>ETH service bound</source>
        <translation>ETH 服务已绑定</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>ETH service not bound</source>
        <translation>ETH 服务未绑定</translation>
    </message>
    <message>
        <location filename="../../src/network/adapterdiagnosis_linux.cpp" line="+115"/>
        <source>the system&apos;s routes can&apos;t be read: %1</source>
        <translation>无法读取系统路由：%1</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>the route lookup for %1 failed: %2</source>
        <translation>查询 %1 的路由失败：%2</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>interface %1</source>
        <translation>接口 %1</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>/proc/sys/%1 holds no number: &quot;%2&quot;</source>
        <translation>/proc/sys/%1 中不是数字：“%2”</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>%1 can&apos;t be read: %2</source>
        <translation>无法读取 %1：%2</translation>
    </message>
</context>
<context>
    <name>AdapterFinding</name>
    <message>
        <location filename="../../src/network/adapterfinding.cpp" line="+11"/>
        <source>Link</source>
        <translation>链路</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>IPv4 address</source>
        <translation>IPv4 地址</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Route to the cameras</source>
        <translation>到相机的路由</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Packet size</source>
        <translation>数据包大小</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Reverse-path filtering</source>
        <translation>反向路径过滤</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Link-local address</source>
        <translation>链路本地地址</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Receive buffer size</source>
        <translation>接收缓冲区大小</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>%1 MiB</source>
        <translation>%1 MiB</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 KiB</source>
        <translation>%1 KiB</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>%1 not checked: %2</source>
        <translation>%1 未检查：%2</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The adapter %1 is switched off.</source>
        <translation>适配器 %1 已关闭。</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Switch it on: ip link set dev %1 up</source>
        <translation>请将其打开：ip link set dev %1 up</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The adapter %1 is switched off: switch it on.</source>
        <translation>适配器 %1 已关闭：请将其打开。</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The adapter %1 has no link.</source>
        <translation>适配器 %1 没有链路。</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Check the cable, the switch and the cameras&apos; power supply.</source>
        <translation>请检查网线、交换机和相机电源。</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The adapter %1 has no link: check the cable, the switch and the cameras&apos; power supply.</source>
        <translation>适配器 %1 没有链路：请检查网线、交换机和相机电源。</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The adapter %1 has no IPv4 address: no DHCP server gave it one.</source>
        <translation>适配器 %1 没有 IPv4 地址：没有 DHCP 服务器为其分配地址。</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The adapter %1 has no IPv4 address.</source>
        <translation>适配器 %1 没有 IPv4 地址。</translation>
    </message>
    <message>
        <location line="+2"/>
        <location line="+80"/>
        <source>Give %1 a static IPv4 address in the cameras&apos; subnet.</source>
        <translation>请为 %1 设置相机所在子网中的静态 IPv4 地址。</translation>
    </message>
    <message>
        <location line="-79"/>
        <source>The adapter %1 has no IPv4 address: give it a static address in the cameras&apos; subnet.</source>
        <translation>适配器 %1 没有 IPv4 地址：请为其设置相机所在子网中的静态地址。</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Traffic to %1 leaves through %2, which has an address in the same subnet %3, not through %4.</source>
        <translation>发往 %1 的流量经由 %2（其地址位于同一子网 %3）发出，而不是经由 %4。</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Give %1 and %2 addresses in different subnets, or remove the address of the one that serves no cameras.</source>
        <translation>请为 %1 和 %2 设置不同子网中的地址，或删除未连接相机的那个适配器的地址。</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Traffic to %1 leaves through %2 instead of %3: give the two adapters different subnets.</source>
        <translation>发往 %1 的流量经由 %2 而不是 %3 发出：请为这两个适配器设置不同的子网。</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The system routes traffic to %1 through %2, not through %3.</source>
        <translation>系统将发往 %1 的流量路由到 %2，而不是 %3。</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Remove the route that sends %1 to %2 (see: ip route get %1).</source>
        <translation>请删除将 %1 发往 %2 的路由（参见：ip route get %1）。</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Traffic to %1 leaves through %2 instead of %3: remove the route that sends it there.</source>
        <translation>发往 %1 的流量经由 %2 而不是 %3 发出：请删除该路由。</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Set the MTU of %1 to %2, or to at least %3 where the adapter takes no jumbo frames.</source>
        <translation>请将 %1 的 MTU 设置为 %2；如果适配器不支持巨型帧，则至少设置为 %3。</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>For example: ip link set dev %1 mtu %2</source>
        <translation>例如：ip link set dev %1 mtu %2</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The MTU of %1 is %2 bytes, too small for the cameras&apos; 2 KB packets, which need %3.</source>
        <translation>%1 的 MTU 为 %2 字节，对相机的 2 KB 数据包来说太小，需要 %3。</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The MTU of %1 (%2) is too small for 2 KB packets: set it to %3, or at least %4.</source>
        <translation>%1 的 MTU（%2）对 2 KB 数据包来说太小：请设置为 %3，或至少 %4。</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>The camera driver sends no 2 KB packets on %1, so the cameras there can&apos;t be reached.</source>
        <translation>相机驱动程序在 %1 上不发送 2 KB 数据包，因此无法访问该适配器上的相机。</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Switch on 2 KB packets for %1 in the ETH service&apos;s adapter settings.</source>
        <translation>请在 ETH 服务的适配器设置中为 %1 启用 2 KB 数据包。</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The driver sends no 2 KB packets on %1: switch them on in the ETH service&apos;s adapter settings.</source>
        <translation>驱动程序在 %1 上不发送 2 KB 数据包：请在 ETH 服务的适配器设置中启用。</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Strict reverse-path filtering (%1 = 1) drops camera replies on %2 whose sender the system would reach through another adapter.</source>
        <translation>严格的反向路径过滤（%1 = 1）会丢弃 %2 上那些系统会经由其他适配器访问其发送方的相机应答。</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Set %1 to 2 (loose): sysctl -w %1=2</source>
        <translation>请将 %1 设置为 2（宽松）：sysctl -w %1=2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Set %1 to 2 (loose) or 0: sysctl -w %1=2</source>
        <translation>请将 %1 设置为 2（宽松）或 0：sysctl -w %1=2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Strict reverse-path filtering on %1 drops camera replies: set %2 to 2.</source>
        <translation>%1 上的严格反向路径过滤会丢弃相机应答：请将 %2 设置为 2。</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The adapter %1 has only the link-local address %2; cameras with a fixed address in another subnet can&apos;t be reached.</source>
        <translation>适配器 %1 只有链路本地地址 %2；无法访问在其他子网中使用固定地址的相机。</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The adapter %1 has only the link-local address %2: give it a static address in the cameras&apos; subnet.</source>
        <translation>适配器 %1 只有链路本地地址 %2：请为其设置相机所在子网中的静态地址。</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Sockets may take at most %1 of receive buffer (net.core.rmem_max); image streams need %2, which hold about 67 ms of a 1 Gbit/s stream, so that no packets are lost while the receiver is busy.</source>
        <translation>套接字最多只能使用 %1 的接收缓冲区（net.core.rmem_max）；图像流需要 %2，可容纳 1 Gbit/s 数据流约 67 毫秒的数据，以免接收方繁忙时丢失数据包。</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Raise it: sysctl -w net.core.rmem_max=%1, and keep it in a file below /etc/sysctl.d.</source>
        <translation>请调高该值：sysctl -w net.core.rmem_max=%1，并将其保存在 /etc/sysctl.d 下的文件中。</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The largest receive buffer (%1) is too small for image streams: raise net.core.rmem_max to %2.</source>
        <translation>最大接收缓冲区（%1）对图像流来说太小：请将 net.core.rmem_max 调高到 %2。</translation>
    </message>
</context>
<context>
    <name>AdapterIpConfig</name>
    <message>
        <location filename="../../src/network/adapteripconfig.cpp" line="+41"/>
        <source>%1 is not a valid subnet mask.</source>
        <translation>%1 不是有效的子网掩码。</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 is not a valid address for a host in a subnet with mask %2.</source>
        <translation>%1 不是子网掩码为 %2 的子网中的有效主机地址。</translation>
    </message>
    <message>
        <location filename="../../src/network/adapteripconfig_linux.cpp" line="+49"/>
        <source>Changing the address of %1 needs administrator rights.</source>
        <translation>更改 %1 的地址需要管理员权限。</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Setting the address of %1 failed: %2</source>
        <translation>设置 %1 的地址失败：%2</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Switching %1 to DHCP is not supported without NetworkManager.</source>
        <translation>没有 NetworkManager 时，不支持将 %1 切换为 DHCP。</translation>
    </message>
</context>
<context>
    <name>AdapterStatisticsModel</name>
    <message>
        <location filename="../../src/dialogs/adapterstatisticsmodel.cpp" line="+71"/>
        <source>driver: %1</source>
        <translation>驱动程序：%1</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>This counter grows when the adapter loses image data.</source>
        <translation>适配器丢失图像数据时，此计数器会增加。</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Counter</source>
        <translation>计数器</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Change since opened</source>
        <translation>打开以来的变化</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>(lost images)</source>
        <translation>（丢失的图像）</translation>
    </message>
</context>
<context>
    <name>AdditionalCameraInfo</name>
    <message>
        <location filename="../../src/dialogs/widgets/additionalcamerainfo.cpp" line="+24"/>
        <source>Additional Camera Info</source>
        <translation>附加相机信息</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>&lt;b&gt;%1&lt;/b&gt; &amp;nbsp; serial number %2, device ID %3</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; &amp;nbsp; 序列号 %2，设备 ID %3</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Copy as text</source>
        <translation>复制为文本</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Revision record</source>
        <translation>修订记录</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Field</source>
        <translation>字段</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Statistics of the network adapter %1</source>
        <translation>网络适配器 %1 的统计信息</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>Changes since this dialog opened; a red row is a counter of lost image data that has grown.</source>
        <translation>自此对话框打开以来的变化；红色行表示丢失图像数据的计数器已增加。</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The network adapter %1 gives no statistics.</source>
        <translation>网络适配器 %1 不提供统计信息。</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Network adapter %1</source>
        <translation>网络适配器 %1</translation>
    </message>
</context>
<context>
    <name>AdditionalFunctions</name>
    <message>
        <location filename="../../src/driver/bootboost.cpp" line="+27"/>
        <source>Could not read the boot boost state: %1</source>
        <translation>无法读取启动加速状态：%1</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Could not enable boot boost: %1</source>
        <translation>无法启用启动加速：%1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Could not disable boot boost: %1</source>
        <translation>无法禁用启动加速：%1</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Could not clear the boot boost list: %1</source>
        <translation>无法清空启动加速列表：%1</translation>
    </message>
    <message>
        <location line="+9"/>
        <location line="+3"/>
        <location line="+4"/>
        <source>Could not read the boot boost list: %1</source>
        <translation>无法读取启动加速列表：%1</translation>
    </message>
    <message>
        <location filename="../../src/driver/driverconfiguration.cpp" line="+68"/>
        <source>Setting read-only multicast failed with code: %1</source>
        <translation>设置只读组播失败，代码：%1</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>pv_FetchRegistryValues() returned %1</source>
        <translation>pv_FetchRegistryValues() 返回 %1</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>onFetchTcpIp() returned %1</source>
        <translation>onFetchTcpIp() 返回 %1</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Failed to set Idle state! Return code: %1</source>
        <translation>设置空闲状态失败！返回码：%1</translation>
    </message>
    <message>
        <location filename="../../src/driver/widgets/additionalfunctions.cpp" line="+40"/>
        <source>Additional functions</source>
        <translation>附加功能</translation>
    </message>
    <message>
        <location line="+34"/>
        <source>Image memory</source>
        <translation>图像内存</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Compatibility mode</source>
        <translation>兼容模式</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Bulk Transfer Size</source>
        <translation>批量传输大小</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Boot boost</source>
        <translation>启动加速</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Enable</source>
        <translation>启用</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>e.g. 3;5-7</source>
        <translation>例如 3;5-7</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Camera IDs from 1 to 254, separated by &quot;;&quot;; &quot;5-7&quot; stands for 5, 6 and 7.</source>
        <translation>相机 ID 为 1 到 254，用“;”分隔；“5-7”表示 5、6 和 7。</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Set ID list</source>
        <translation>设置 ID 列表</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Clear ID list</source>
        <translation>清空 ID 列表</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Add ID</source>
        <translation>添加 ID</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Remove ID</source>
        <translation>移除 ID</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Current boot boost Ids:</source>
        <translation>当前启动加速 ID：</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>CPU idle states</source>
        <translation>CPU 空闲状态</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Disable (battery mode)</source>
        <translation>禁用（电池模式）</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Disable (mains mode)</source>
        <translation>禁用（电源模式）</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Allow thread for performance optimization (IPO)</source>
        <translation>允许性能优化线程（IPO）</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Multicast</source>
        <translation>组播</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Enable read-only multicast</source>
        <translation>启用只读组播</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Trusted pairing</source>
        <translation>可信配对</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Enable trusted pairing mode</source>
        <translation>启用可信配对模式</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Driver</source>
        <translation>驱动程序</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Debug output...</source>
        <translation>调试输出...</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Driver flags...</source>
        <translation>驱动程序标志...</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Reread driver settings</source>
        <translation>重新读取驱动程序设置</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Makes the driver read its settings files again.</source>
        <translation>让驱动程序重新读取其设置文件。</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Reread TCP/IP settings</source>
        <translation>重新读取 TCP/IP 设置</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Makes the driver read the network adapters&apos; TCP/IP settings again.</source>
        <translation>让驱动程序重新读取网络适配器的 TCP/IP 设置。</translation>
    </message>
    <message>
        <location line="+43"/>
        <source>Restart with elevated privileges!</source>
        <translation>请以提升的权限重新启动！</translation>
    </message>
    <message>
        <location line="+29"/>
        <location line="+20"/>
        <location line="+18"/>
        <location line="+8"/>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <location line="-36"/>
        <location line="+3"/>
        <source>Wrong ID</source>
        <translation>错误的 ID</translation>
    </message>
    <message>
        <location line="-3"/>
        <source>&quot;%1&quot; is not a camera ID.</source>
        <translation>“%1”不是相机 ID。</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The ID %1 has to be between with %2 and %3</source>
        <translation>ID %1 必须介于 %2 和 %3 之间</translation>
    </message>
    <message>
        <location line="+45"/>
        <location line="+18"/>
        <location line="+35"/>
        <location line="+12"/>
        <location line="+11"/>
        <source>Failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <location line="-58"/>
        <source>Failed to set IPO state! Return code: %1</source>
        <translation>设置 IPO 状态失败！返回码：%1</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Please restart</source>
        <translation>请重新启动</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Please restart the system manually to apply this setting.</source>
        <translation>请手动重新启动系统以应用此设置。</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>privileged feature</source>
        <translation>特权功能</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>To use this feature, 
start the %1 with
elevated privileges e.g root or admin!</source>
        <translation>要使用此功能，
请以提升的权限（例如 root 或管理员）
启动 %1！</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+7"/>
        <source>Memory compatibility mode</source>
        <translation>内存兼容模式</translation>
    </message>
    <message>
        <location line="-6"/>
        <source>The image memory compatibility mode could not be changed!
Error code: %1</source>
        <translation>无法更改图像内存兼容模式！
错误代码：%1</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>To completely adopt the compatibility mode please reboot your system or reconnect all cameras!</source>
        <translation>要完全启用兼容模式，请重新启动系统或重新连接所有相机！</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Setting trusted pairing mode failed with code: %1</source>
        <translation>设置可信配对模式失败，代码：%1</translation>
    </message>
    <message>
        <location line="+31"/>
        <location line="+7"/>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
</context>
<context>
    <name>ArpProber</name>
    <message>
        <location filename="../../src/network/arpprober.cpp" line="+44"/>
        <source>The adapter %1 has no IPv4 address.</source>
        <translation>适配器 %1 没有 IPv4 地址。</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 is not a valid subnet mask for adapter %2.</source>
        <translation>%1 不是适配器 %2 的有效子网掩码。</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>The address %1 is not on the network of adapter %2 (%3/%4).</source>
        <translation>地址 %1 不在适配器 %2 (%3/%4) 的网络中。</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The address %1 is the network address of adapter %2 (%3/%4).</source>
        <translation>地址 %1 是适配器 %2 (%3/%4) 的网络地址。</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The address %1 is the broadcast address of adapter %2 (%3/%4).</source>
        <translation>地址 %1 是适配器 %2 (%3/%4) 的广播地址。</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>The address %1 is the address of adapter %2 itself.</source>
        <translation>地址 %1 是适配器 %2 自身的地址。</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>No host answered for %1 on adapter %2 within %3 ms.</source>
        <translation>适配器 %2 上没有主机在 %3 毫秒内应答 %1。</translation>
    </message>
</context>
<context>
    <name>BootBoostIdList</name>
    <message>
        <location filename="../../src/driver/bootboostidlist.cpp" line="+83"/>
        <source>The IDs %1 could not be added to the boot boost list.
Return code: %2</source>
        <translation>无法将 ID %1 添加到启动加速列表。
返回码：%2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The IDs %1 could not be removed from the boot boost list.
Return code: %2</source>
        <translation>无法从启动加速列表中移除 ID %1。
返回码：%2</translation>
    </message>
</context>
<context>
    <name>Camera</name>
    <message>
        <location filename="../../src/camera/camera.cpp" line="+32"/>
        <source>unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <location line="+175"/>
        <source>no sensor</source>
        <translation>无传感器</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>invalid</source>
        <translation>无效</translation>
    </message>
</context>
<context>
    <name>CameraActions</name>
    <message>
        <location filename="../../src/camera/cameraactions.cpp" line="+25"/>
        <source>Camera %1 could not be opened.
Return code: %2</source>
        <translation>无法打开相机 %1。
返回代码：%2</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Camera %1 did not accept the identification command.
Return code: %2</source>
        <translation>相机 %1 未接受识别命令。
返回代码：%2</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>The read-only device could not be removed.
Return code: %1</source>
        <translation>无法移除只读设备。
返回代码：%1</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>The ETH service could not be connected.
Return code: %1</source>
        <translation>无法连接 ETH 服务。
返回代码：%1</translation>
    </message>
</context>
<context>
    <name>CameraCall</name>
    <message>
        <location filename="../../src/dialogs/cameracall.cpp" line="+8"/>
        <source>%1
The function is not supported by the installed driver (return code: %2).</source>
        <translation>%1
已安装的驱动程序不支持此功能（返回代码：%2）。</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1
Return code: %2</source>
        <translation>%1
返回代码：%2</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>%1
The camera accepted the value but reads back another one.</source>
        <translation>%1
相机接受了该值，但读回的是另一个值。</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>not supported by the installed driver</source>
        <translation>不受已安装的驱动程序支持</translation>
    </message>
    <message>
        <location filename="../../src/dialogs/cameracall.h" line="+43"/>
        <source>%1
The value could not be read back.</source>
        <translation>%1
无法读回该值。</translation>
    </message>
</context>
<context>
    <name>CameraIdAccess</name>
    <message>
        <location filename="../../src/dialogs/cameraidaccess.cpp" line="+8"/>
        <source>The camera ID could not be read.</source>
        <translation>无法读取相机 ID。</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>A camera ID is a number from %1 to %2.</source>
        <translation>相机 ID 是 %1 到 %2 之间的数字。</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The camera ID could not be written.</source>
        <translation>无法写入相机 ID。</translation>
    </message>
</context>
<context>
    <name>CameraInfo</name>
    <message>
        <location filename="../../src/dialogs/widgets/camerainfo.cpp" line="+30"/>
        <source>Camera information</source>
        <translation>相机信息</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>&lt;b&gt;%1&lt;/b&gt; &amp;nbsp; serial number %2, device ID %3</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; &amp;nbsp; 序列号 %2，设备 ID %3</translation>
    </message>
    <message>
        <location line="+39"/>
        <source>Camera %1 has no functions that this dialog offers.</source>
        <translation>相机 %1 不具备此对话框提供的任何功能。</translation>
    </message>
</context>
<context>
    <name>CameraInfoEepromPage</name>
    <message>
        <location filename="../../src/dialogs/widgets/camerainfoeeprompage.cpp" line="+26"/>
        <source>Read</source>
        <translation>读取</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Write</source>
        <translation>写入</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Clear</source>
        <translation>清空</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Hexadecimal:</source>
        <translation>十六进制：</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Text:</source>
        <translation>文本：</translation>
    </message>
    <message>
        <location line="+31"/>
        <location line="+11"/>
        <location line="+12"/>
        <source>%1 of %2 bytes used</source>
        <translation>已使用 %1 字节（共 %2 字节）</translation>
    </message>
    <message>
        <location line="-16"/>
        <source>The hexadecimal field holds no valid bytes.</source>
        <translation>十六进制字段不包含有效字节。</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>The text may hold printable ASCII characters only.</source>
        <translation>文本只能包含可打印的 ASCII 字符。</translation>
    </message>
    <message>
        <location filename="../../src/dialogs/widgets/camerainfoeeprompage.h" line="+21"/>
        <source>User EEPROM</source>
        <translation>用户 EEPROM</translation>
    </message>
</context>
<context>
    <name>CameraInfoFpnPage</name>
    <message>
        <location filename="../../src/dialogs/widgets/camerainfofpnpage.cpp" line="+20"/>
        <source>Start calibration</source>
        <translation>开始校准</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Reset to factory calibration</source>
        <translation>恢复为出厂校准</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Cover the lens before you start: the camera measures the noise of a dark image.</source>
        <translation>开始前请遮住镜头：相机将测量暗图像的噪声。</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>Calibrating...</source>
        <translation>正在校准...</translation>
    </message>
    <message>
        <location line="+39"/>
        <source>Replace the camera&apos;s own calibration by the factory calibration?</source>
        <translation>是否用出厂校准替换相机自身的校准？</translation>
    </message>
    <message>
        <location filename="../../src/dialogs/widgets/camerainfofpnpage.h" line="+25"/>
        <source>FPN calibration</source>
        <translation>FPN 校准</translation>
    </message>
</context>
<context>
    <name>CameraInfoIdPage</name>
    <message>
        <location filename="../../src/dialogs/widgets/camerainfoidpage.cpp" line="+24"/>
        <source>Write</source>
        <translation>写入</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Current camera ID:</source>
        <translation>当前相机 ID：</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>New camera ID:</source>
        <translation>新相机 ID：</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The camera list shows the new ID as soon as the driver reports the change.</source>
        <translation>驱动程序报告更改后，相机列表将立即显示新 ID。</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Camera %1 in the list has the ID %2 already. Two cameras with the same ID can&apos;t be told apart by their ID.</source>
        <translation>列表中的相机 %1 已使用 ID %2。ID 相同的两台相机无法通过 ID 区分。</translation>
    </message>
    <message>
        <location filename="../../src/dialogs/widgets/camerainfoidpage.h" line="+23"/>
        <source>Camera ID</source>
        <translation>相机 ID</translation>
    </message>
</context>
<context>
    <name>CameraInfoLensPage</name>
    <message>
        <location filename="../../src/dialogs/widgets/camerainfolenspage.cpp" line="+24"/>
        <source> dpt</source>
        <translation> dpt</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Store as start-up value</source>
        <translation>保存为启动值</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Focal power:</source>
        <translation>光焦度：</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>Range of the lens: %1 to %2</source>
        <translation>镜头范围：%1 至 %2</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Start-up value: %1</source>
        <translation>启动值：%1</translation>
    </message>
    <message>
        <location filename="../../src/dialogs/widgets/camerainfolenspage.h" line="+24"/>
        <source>Liquid lens</source>
        <translation>液体镜头</translation>
    </message>
</context>
<context>
    <name>CameraInfoPage</name>
    <message>
        <location filename="../../src/dialogs/widgets/camerainfopage.cpp" line="+31"/>
        <source>Some functions of this page are %1.</source>
        <translation>此页面的部分功能%1。</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>This page is %1.</source>
        <translation>此页面%1。</translation>
    </message>
</context>
<context>
    <name>CameraInfoParameterPage</name>
    <message>
        <location filename="../../src/dialogs/widgets/camerainfoparameterpage.cpp" line="+25"/>
        <source>Parameter</source>
        <translation>参数</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Make start-up set</source>
        <translation>设为启动参数集</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Save current settings into this set</source>
        <translation>将当前设置保存到此参数集</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Reset to factory</source>
        <translation>恢复出厂设置</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Export...</source>
        <translation>导出...</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Import...</source>
        <translation>导入...</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Set:</source>
        <translation>参数集：</translation>
    </message>
    <message>
        <location line="+56"/>
        <source>Start-up set: %1</source>
        <translation>启动参数集：%1</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>Reset the camera&apos;s current settings and its start-up set to the factory defaults?</source>
        <translation>是否将相机的当前设置及其启动参数集恢复为出厂默认值？</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>Parameter sets (*.ini)</source>
        <translation>参数集 (*.ini)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Export parameter set</source>
        <translation>导出参数集</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Import parameter set</source>
        <translation>导入参数集</translation>
    </message>
    <message>
        <location filename="../../src/dialogs/widgets/camerainfoparameterpage.h" line="+28"/>
        <source>Parameter sets</source>
        <translation>参数集</translation>
    </message>
</context>
<context>
    <name>CameraList</name>
    <message>
        <location filename="../../src/camera/widgets/cameralist.cpp" line="+121"/>
        <source>&amp;Open this camera</source>
        <translation>打开此相机(&amp;O)</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Open &amp;all available cameras</source>
        <translation>打开所有可用相机(&amp;A)</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>&amp;Refresh list</source>
        <translation>刷新列表(&amp;R)</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>&amp;Identify this camera</source>
        <translation>识别此相机(&amp;I)</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>&amp;Camera information</source>
        <translation>相机信息(&amp;C)</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Manual ETH configuration</source>
        <translation>手动 ETH 配置</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Add Readonly Device</source>
        <translation>添加只读设备(&amp;A)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>COM port configuration</source>
        <translation>COM 端口配置</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Restart with elevated privileges!</source>
        <translation>请使用提升的权限重新启动！</translation>
    </message>
</context>
<context>
    <name>CameraListModel</name>
    <message>
        <location filename="../../src/camera/cameralistmodel.cpp" line="+81"/>
        <source>Free</source>
        <translation>空闲</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Avail.</source>
        <translation>可用</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Cam. ID</source>
        <translation>相机 ID</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Dev. ID</source>
        <translation>设备 ID</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Model</source>
        <translation>型号</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Ser. No.</source>
        <translation>序列号</translation>
    </message>
    <message>
        <location filename="../../src/camera/cameracelltexts.cpp" line="+24"/>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <location line="-5"/>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>Yes (BB): the driver keeps the camera in boot boost mode; it can be opened.</source>
        <translation>是 (BB)：驱动程序使相机保持在 Boot Boost 模式下；可以打开该相机。</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>USB: USB camera</source>
        <translation>USB：USB 相机</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>ETH: GigE camera</source>
        <translation>ETH：GigE 相机</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>PMC: read-only multicast device, a passive receiver of a GigE camera&apos;s stream</source>
        <translation>PMC：只读组播设备，被动接收 GigE 相机的数据流</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>U3V: USB3 Vision camera of the Parvel Summit SDK</source>
        <translation>U3V：Parvel Summit SDK 的 USB3 Vision 相机</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>GEV: GigE Vision camera of the Parvel Summit SDK</source>
        <translation>GEV：Parvel Summit SDK 的 GigE Vision 相机</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>UNK: a device of a kind that this version does not know</source>
        <translation>UNK：此版本无法识别的设备类型</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Free: whether no other host holds the camera.</source>
        <translation>空闲：相机是否未被其他主机占用。</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Avail.: whether the camera can be opened now.</source>
        <translation>可用：相机当前是否可以打开。</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Type: the kind of device.</source>
        <translation>类型：设备的种类。</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cam. ID: the camera ID, a number from 1 to 254 that is stored in the camera.</source>
        <translation>相机 ID：存储在相机中的 1 到 254 之间的数字。</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Dev. ID: the device ID, which the driver gives the device for this connection.</source>
        <translation>设备 ID：驱动程序为本次连接分配给设备的 ID。</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Model: the model name.</source>
        <translation>型号：型号名称。</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Ser. No.: the serial number.</source>
        <translation>序列号：设备的序列号。</translation>
    </message>
    <message>
        <location line="+50"/>
        <source>Yes (BB)</source>
        <translation>是 (BB)</translation>
    </message>
</context>
<context>
    <name>CameraListPlaceholder</name>
    <message>
        <location filename="../../src/app/cameralistplaceholder.cpp" line="+7"/>
        <source>No cameras found.</source>
        <translation>未找到相机。</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The USB driver service (cirro_usb) is not running, so no USB camera can be found. Start it as administrator: systemctl start cirro_usb</source>
        <translation>USB 驱动服务 (cirro_usb) 未运行，因此无法找到 USB 相机。请以管理员身份启动该服务：systemctl start cirro_usb</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The USB driver service (cirro_usb) is not installed, so no USB camera can be found.</source>
        <translation>USB 驱动服务 (cirro_usb) 未安装，因此无法找到 USB 相机。</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The ETH driver service (cirro_eth) is not running, so no GigE camera can be found. Start it in &quot;ETH network service&quot;.</source>
        <translation>ETH 驱动服务 (cirro_eth) 未运行，因此无法找到 GigE 相机。请在“ETH 网络服务”中启动该服务。</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The ETH driver service (cirro_eth) is not installed, so no GigE camera can be found.</source>
        <translation>ETH 驱动服务 (cirro_eth) 未安装，因此无法找到 GigE 相机。</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The states of the driver services can&apos;t be read.</source>
        <translation>无法读取驱动服务的状态。</translation>
    </message>
</context>
<context>
    <name>CheckBoxEx</name>
    <message>
        <location filename="../../src/driver/widgets/checkboxex.cpp" line="+36"/>
        <source>Restart with elevated privileges!</source>
        <translation>请以提升的权限重新启动！</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Failed</source>
        <translation>失败</translation>
    </message>
</context>
<context>
    <name>ComDialog</name>
    <message>
        <location filename="../../src/comport/widgets/comdialog.cpp" line="+48"/>
        <source>COM port configuration</source>
        <translation>COM 端口配置</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Camera</source>
        <translation>相机</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>%1 (device %2)</source>
        <translation>%1（设备 %2）</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Model:</source>
        <translation>型号：</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Serial number:</source>
        <translation>序列号：</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Camera ID:</source>
        <translation>相机 ID：</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Virtual COM port</source>
        <translation>虚拟 COM 端口</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Install</source>
        <translation>安装</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Save in camera</source>
        <translation>保存到相机</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Test</source>
        <translation>测试</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Installed port:</source>
        <translation>已安装的端口：</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Saved in the camera:</source>
        <translation>已保存在相机中：</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Port number:</source>
        <translation>端口号：</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Test answer:</source>
        <translation>测试应答：</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Broadcast port</source>
        <translation>广播端口</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Broadcast port: one port that addresses every camera</source>
        <translation>广播端口：可同时寻址所有相机的端口</translation>
    </message>
    <message>
        <location line="+33"/>
        <location line="+19"/>
        <source>COM port %1: %2</source>
        <translation>COM 端口 %1：%2</translation>
    </message>
    <message>
        <location line="-18"/>
        <source>not installed</source>
        <translation>未安装</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>COM port %1</source>
        <translation>COM 端口 %1</translation>
    </message>
    <message>
        <location line="+45"/>
        <source>COM port %1 is installed: %2</source>
        <translation>COM 端口 %1 已安装：%2</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>COM port %1 is saved in the camera, which takes it on every computer.</source>
        <translation>COM 端口 %1 已保存在相机中，相机在任何计算机上都将使用该端口。</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>The COM port is removed.</source>
        <translation>COM 端口已移除。</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Testing COM port %1 ...</source>
        <translation>正在测试 COM 端口 %1 ...</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>COM port %1 answered.</source>
        <translation>COM 端口 %1 已应答。</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>The broadcast port is on: %1</source>
        <translation>广播端口已开启：%1</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>The broadcast port is off.</source>
        <translation>广播端口已关闭。</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Errorcode: %1</source>
        <translation>错误代码：%1</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>gone with the camera</source>
        <translation>已随相机断开</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Camera %1 is no longer connected. Its COM port is gone with it; close this dialog.</source>
        <translation>相机 %1 已断开连接，其 COM 端口也随之移除；请关闭此对话框。</translation>
    </message>
</context>
<context>
    <name>ComPortAccess</name>
    <message>
        <location filename="../../src/comport/comportaccess.cpp" line="+42"/>
        <source>COM port %1 is not possible: a camera&apos;s port number is from %2 to %3.</source>
        <translation>无法使用 COM 端口 %1：相机的端口号范围为 %2 到 %3。</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>The COM port of camera %1 could not be read.</source>
        <translation>无法读取相机 %1 的 COM 端口。</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>COM port %1 could not be installed.</source>
        <translation>无法安装 COM 端口 %1。</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>The COM port of camera %1 could not be removed.</source>
        <translation>无法移除相机 %1 的 COM 端口。</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>The COM port saved in camera %1 could not be read.</source>
        <translation>无法读取相机 %1 中保存的 COM 端口。</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>COM port %1 could not be saved in the camera.</source>
        <translation>无法将 COM 端口 %1 保存到相机中。</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>%1
The value could not be read back.</source>
        <translation>%1
无法读回该值。</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>The broadcast port could not be read.</source>
        <translation>无法读取广播端口。</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The broadcast port could not be switched on.</source>
        <translation>无法开启广播端口。</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The broadcast port could not be switched off.</source>
        <translation>无法关闭广播端口。</translation>
    </message>
</context>
<context>
    <name>ComPortAnswer</name>
    <message>
        <location filename="../../src/comport/comportanswer.cpp" line="+46"/>
        <source>No camera answered.</source>
        <translation>没有相机应答。</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1, serial number %2, camera ID %3</source>
        <translation>%1，序列号 %2，相机 ID %3</translation>
    </message>
</context>
<context>
    <name>ComPortNumbers</name>
    <message>
        <location filename="../../src/comport/comportnumbers.cpp" line="+38"/>
        <source>COM port %1 is installed for camera %2 already. Choose another number, or remove that camera&apos;s port first.</source>
        <translation>COM 端口 %1 已为相机 %2 安装。请选择其他端口号，或先移除该相机的端口。</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Camera %1 has COM port %2 installed.</source>
        <translation>相机 %1 已安装 COM 端口 %2。</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Camera %1 has COM port %2 saved too; the two would clash on another computer.</source>
        <translation>相机 %1 中也保存了 COM 端口 %2；在另一台计算机上两者会发生冲突。</translation>
    </message>
</context>
<context>
    <name>ComPortTest</name>
    <message>
        <location filename="../../src/comport/comporttest.cpp" line="+47"/>
        <source>%1 is in use by another program, or this user may not open it.</source>
        <translation>%1 正被其他程序使用，或当前用户无权打开。</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 does not exist (any more).</source>
        <translation>%1 不存在（或已不存在）。</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 could not be opened: %2</source>
        <translation>无法打开 %1：%2</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>The camera behind %1 answered with an error: %2</source>
        <translation>%1 上的相机返回错误：%2</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>%1 answered something that is not a camera&apos;s identification: &quot;%2&quot;</source>
        <translation>%1 的应答不是相机标识：“%2”</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>%1 went away during the test: %2</source>
        <translation>%1 在测试期间已断开：%2</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>%1 did not answer within %2 ms.</source>
        <translation>%1 未在 %2 毫秒内应答。</translation>
    </message>
</context>
<context>
    <name>ControlArea</name>
    <message>
        <location filename="../../src/app/widgets/controlarea.cpp" line="+86"/>
        <source>Control area</source>
        <translation>控制区</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Expert mode</source>
        <translation>专家模式</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Show/hide detailed information view</source>
        <translation>显示/隐藏详细信息视图</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Automatic parameter refresh</source>
        <translation>自动刷新参数</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Enables/Disables the automatic refresh of the detailed information view</source>
        <translation>启用/禁用详细信息视图的自动刷新</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Camera information</source>
        <translation>相机信息</translation>
    </message>
    <message>
        <location line="+0"/>
        <location line="+11"/>
        <source>Show additional camera information</source>
        <translation>显示附加相机信息</translation>
    </message>
    <message>
        <location line="-10"/>
        <source>General information</source>
        <translation>常规信息</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Show general information dialog</source>
        <translation>显示“常规信息”对话框</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Upload starter firmware</source>
        <translation>上传启动固件</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Upload a runtime firmware manually</source>
        <translation>手动上传运行时固件</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Create support file</source>
        <translation>创建支持文件</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Create a support file with important system
 and %1 information for sending to the %2 support</source>
        <translation>创建一个包含重要系统信息
 和 %1 信息的支持文件，用于发送给 %2 技术支持</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>ETH network service</source>
        <translation>ETH 网络服务</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Show network configuration dialog</source>
        <translation>显示网络配置对话框</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Additional functions</source>
        <translation>附加功能</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Manual ETH configuration</source>
        <translation>手动 ETH 配置</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Show network device configuration dialog</source>
        <translation>显示网络设备配置对话框</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Automatic ETH configuration</source>
        <translation>自动 ETH 配置</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Automatic network configuration</source>
        <translation>自动网络配置</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Read support file</source>
        <translation>读取支持文件</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Additional Camera Info</source>
        <translation>附加相机信息</translation>
    </message>
</context>
<context>
    <name>DeviceInfoModel</name>
    <message>
        <location filename="../../src/details/deviceflagrenderer.cpp" line="+19"/>
        <source>true</source>
        <translation>是</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>false</source>
        <translation>否</translation>
    </message>
    <message>
        <location filename="../../src/details/deviceinfomodel.cpp" line="+77"/>
        <source>Parameter</source>
        <translation>参数</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Values</source>
        <translation>值</translation>
    </message>
    <message>
        <location filename="../../src/details/deviceinfotreebuilder.cpp" line="+88"/>
        <source>Starter firmware version</source>
        <translation>启动固件版本</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Runtime firmware version</source>
        <translation>运行时固件版本</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>%1. Hub</source>
        <translation>第 %1 级集线器</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>%1 (Port %2)</source>
        <translation>%1（端口 %2）</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1. Controller</source>
        <translation>第 %1 级控制器</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>ETH version</source>
        <translation>ETH 版本</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>USB version</source>
        <translation>USB 版本</translation>
    </message>
    <message>
        <location line="+5"/>
        <location line="+51"/>
        <location line="+36"/>
        <source>Device</source>
        <translation>设备</translation>
    </message>
    <message>
        <location line="-86"/>
        <location line="+49"/>
        <location line="+38"/>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <location line="-85"/>
        <source>User EEPROM (8 chars)</source>
        <translation>用户 EEPROM（8 个字符）</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+89"/>
        <source>COM port number</source>
        <translation>COM 端口号</translation>
    </message>
    <message>
        <location line="-88"/>
        <location line="+86"/>
        <source>Camera temperature</source>
        <translation>相机温度</translation>
    </message>
    <message>
        <location line="-85"/>
        <source>Device status flags</source>
        <translation>设备状态标志</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Device control status</source>
        <translation>设备控制状态</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Hardware</source>
        <translation>硬件</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+79"/>
        <source>Sensor ID</source>
        <translation>传感器 ID</translation>
    </message>
    <message>
        <location line="-78"/>
        <source>Image memory size</source>
        <translation>图像存储器大小</translation>
    </message>
    <message>
        <location filename="../../src/details/devicevaluerenderer.cpp" line="+106"/>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <location filename="../../src/details/deviceinfotreebuilder.cpp" line="+8"/>
        <location line="+44"/>
        <source>Network</source>
        <translation>网络</translation>
    </message>
    <message>
        <location line="-43"/>
        <location line="+44"/>
        <source>MAC address</source>
        <translation>MAC 地址</translation>
    </message>
    <message>
        <location line="-43"/>
        <source>Current IP address</source>
        <translation>当前 IP 地址</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Current Subnetmask</source>
        <translation>当前子网掩码</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Persistent IP address</source>
        <translation>持久 IP 地址</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Persistent IP subnetmask</source>
        <translation>持久 IP 子网掩码</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>DHCP FSM state</source>
        <translation>DHCP FSM 状态</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>DHCP state</source>
        <translation>DHCP 状态</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Enabled</source>
        <translation>已启用</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>DHCP server IP</source>
        <translation>DHCP 服务器 IP</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>DHCP lease time</source>
        <translation>DHCP 租用时间</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>DHCP T1 time</source>
        <translation>DHCP T1 时间</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>DHCP T2 time</source>
        <translation>DHCP T2 时间</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+32"/>
        <source>IP range begin</source>
        <translation>IP 范围起始地址</translation>
    </message>
    <message>
        <location line="-31"/>
        <location line="+33"/>
        <source>IP range end</source>
        <translation>IP 范围结束地址</translation>
    </message>
    <message>
        <location line="-32"/>
        <source>Paired host MAC address</source>
        <translation>已配对主机的 MAC 地址</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Paired host IP address</source>
        <translation>已配对主机的 IP 地址</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Multicast IP address</source>
        <translation>组播 IP 地址</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Link</source>
        <translation>链路</translation>
    </message>
    <message>
        <location filename="../../src/details/devicevaluerenderer.cpp" line="-5"/>
        <source>%1 Mbits/s</source>
        <translation>%1 Mbit/s</translation>
    </message>
    <message>
        <location filename="../../src/details/deviceinfotreebuilder.cpp" line="+7"/>
        <source>Local network adapter</source>
        <translation>本地网络适配器</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Designation</source>
        <translation>名称</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Driver version</source>
        <translation>驱动程序版本</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Driver date</source>
        <translation>驱动程序日期</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>DHCP enabled</source>
        <translation>DHCP 已启用</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Number of known devices</source>
        <translation>已知设备数</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Number of paired devices</source>
        <translation>已配对设备数</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>IP address</source>
        <translation>IP 地址</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>IP subnetmask</source>
        <translation>IP 子网掩码</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>IP range valid</source>
        <translation>IP 范围有效</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Packet filter</source>
        <translation>数据包过滤器</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Multicast Enabled</source>
        <translation>组播已启用</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Adapter link speed</source>
        <translation>适配器链路速度</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 Mbit/s</source>
        <translation>%1 Mbit/s</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Device type</source>
        <translation>设备类型</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Link speed</source>
        <translation>链路速度</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Local driver</source>
        <translation>本地驱动程序</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Min. compatible starter FW</source>
        <translation>最低兼容启动固件</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Max. compatible starter FW</source>
        <translation>最高兼容启动固件</translation>
    </message>
    <message>
        <location filename="../../src/details/devicevaluerenderer.cpp" line="-64"/>
        <source>Invalid - temperature sensor defect!</source>
        <translation>无效 - 温度传感器故障！</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Invalid - temperature sensor to high!</source>
        <translation>无效 - 温度传感器读数过高！</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>High Speed (USB 2.0)</source>
        <translation>高速 (USB 2.0)</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>SuperSpeed USB 5 Gbps</source>
        <translation>超高速 USB 5 Gbps</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Pass all</source>
        <translation>全部通过</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Block CRGET</source>
        <translation>阻止 CRGET</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Block all</source>
        <translation>全部阻止</translation>
    </message>
    <message>
        <location filename="../../src/details/flagtables.cpp" line="+16"/>
        <source>Ready to operate</source>
        <translation>就绪</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Testing current IP</source>
        <translation>正在测试当前 IP</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Testing persistent IP</source>
        <translation>正在测试持久 IP</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Testing IP range</source>
        <translation>正在测试 IP 范围</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Current IP address not applicable</source>
        <translation>当前 IP 地址不适用</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Persistent IP address not applicable</source>
        <translation>持久 IP 地址不适用</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>IP range not applicable</source>
        <translation>IP 范围不适用</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Multicast mode enabled</source>
        <translation>组播模式已启用</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Unpaired</source>
        <translation>未配对</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+28"/>
        <source>Pairing in progress</source>
        <translation>正在配对</translation>
    </message>
    <message>
        <location line="-27"/>
        <location line="+28"/>
        <source>Paired</source>
        <translation>已配对</translation>
    </message>
    <message>
        <location line="-27"/>
        <source>Force 100Mbps</source>
        <translation>强制 100 Mbps</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>No COM port</source>
        <translation>无 COM 端口</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Needs firmware addon</source>
        <translation>需要附加固件</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Receiving starter firmware</source>
        <translation>正在接收启动固件</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Receiving runtime firmware</source>
        <translation>正在接收运行时固件</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Inapplicable runtime firmware</source>
        <translation>运行时固件不适用</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Inapplicable starter firmware</source>
        <translation>启动固件不适用</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Rebooting to runtime firmware</source>
        <translation>正在重启至运行时固件</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Rebooting to starter firmware</source>
        <translation>正在重启至启动固件</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Rebooting to failsafe firmware</source>
        <translation>正在重启至故障安全固件</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Testing FPGA Firmware</source>
        <translation>正在测试 FPGA 固件</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Receiving addon firmware</source>
        <translation>正在接收附加固件</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Inapplicable addon firmware</source>
        <translation>附加固件不适用</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Hardware configuration error</source>
        <translation>硬件配置错误</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Runtime firmware error 0</source>
        <translation>运行时固件错误 0</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Available</source>
        <translation>可用</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Accessible 1</source>
        <translation>可访问 1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Accessible 2</source>
        <translation>可访问 2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Persistent IP address used</source>
        <translation>已使用持久 IP 地址</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Compatible</source>
        <translation>兼容</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Adapter uses DHCP</source>
        <translation>适配器使用 DHCP</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Adapter settings OK</source>
        <translation>适配器设置正常</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Unpairing in progress</source>
        <translation>正在取消配对</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Opened</source>
        <translation>已打开</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Upload starter firmware</source>
        <translation>上传启动固件</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Upload runtime firmware</source>
        <translation>上传运行时固件</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Rebooting</source>
        <translation>正在重启</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Boot boost enabled</source>
        <translation>Boot Boost 已启用</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Boot boost used</source>
        <translation>已使用 Boot Boost</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Initialized</source>
        <translation>已初始化</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>To be deleted</source>
        <translation>待删除</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>To be removed</source>
        <translation>待移除</translation>
    </message>
</context>
<context>
    <name>DeviceInfoView</name>
    <message>
        <location filename="../../src/details/widgets/deviceinfoview.cpp" line="+97"/>
        <source>Copy item values</source>
        <translation>复制条目值</translation>
    </message>
</context>
<context>
    <name>DriverComponentInventory</name>
    <message>
        <location filename="../../src/sysinfo/drivercomponentinventory.cpp" line="+19"/>
        <source>not installed</source>
        <translation>未安装</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>not running</source>
        <translation>未运行</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>running</source>
        <translation>正在运行</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>no access to the service manager</source>
        <translation>无法访问服务管理器</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>%1 (simulated)</source>
        <translation>%1（模拟）</translation>
    </message>
</context>
<context>
    <name>DriverOutput</name>
    <message>
        <location filename="../../src/driver/driveroutput.cpp" line="+21"/>
        <source>The simulated driver writes the trace lines of %1 to %2.</source>
        <translation>模拟驱动程序将 %1 的跟踪行写入 %2。</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>the trace file %1</source>
        <translation>跟踪文件 %1</translation>
    </message>
</context>
<context>
    <name>DriverOutputView</name>
    <message>
        <location filename="../../src/driver/widgets/driveroutputview.cpp" line="+17"/>
        <source>Recent output of %1</source>
        <translation>%1 的最近输出</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Refresh</source>
        <translation>刷新</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>Reading ...</source>
        <translation>正在读取 ...</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>No lines in %1 yet. Switch categories on in the debug output mask and use the cameras.</source>
        <translation>%1 中尚无任何行。请在调试输出掩码中启用类别并使用相机。</translation>
    </message>
    <message numerus="yes">
        <location line="+3"/>
        <source>The last %n line(s) of %1, newest last:</source>
        <translation>
            <numerusform>%1 的最后 %n 行，最新的在最后：</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ElevatedRestart</name>
    <message>
        <location filename="../../src/common/elevatedrestart_linux.cpp" line="+68"/>
        <source>%1 could not be started.</source>
        <translation>无法启动 %1。</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>The authorisation was refused or failed.</source>
        <translation>授权被拒绝或失败。</translation>
    </message>
</context>
<context>
    <name>Elevation</name>
    <message>
        <location filename="../../src/common/widgets/elevationprompt.cpp" line="+17"/>
        <source>Restart application</source>
        <translation>重新启动应用程序</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Some features require admin privileges. Do you want to restart the application as admin?</source>
        <translation>部分功能需要管理员权限。是否以管理员身份重新启动应用程序？</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>This function needs admin privileges and you refused it!</source>
        <translation>此功能需要管理员权限，但您已拒绝授予！</translation>
    </message>
</context>
<context>
    <name>EthConfig</name>
    <message>
        <location filename="../../src/network/ethconfigchecks.cpp" line="+14"/>
        <source>The IP range begin must be less than or equal to the IP range end!</source>
        <translation>IP 范围起始必须小于或等于 IP 范围结束！</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The IP range end must not be equal to the
broadcast address of the subnet!</source>
        <translation>IP 范围结束不能等于
子网的广播地址！</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The IP range end must not be equal to the
broadcast address of the subnet!
And the host part of the IP range must not start with 0!</source>
        <translation>IP 范围结束不能等于
子网的广播地址！
并且 IP 范围的主机部分不能以 0 开始！</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The host part of the IP range must not start with 0!</source>
        <translation>IP 范围的主机部分不能以 0 开始！</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The given address %1 is not a suitable IP for
the adapter with address %2 / %3!
Do you want to continue anyway?</source>
        <translation>给定的地址 %1 不适合
地址为 %2 / %3 的适配器！
是否仍要继续？</translation>
    </message>
    <message>
        <location filename="../../src/network/widgets/ethconfig.cpp" line="+78"/>
        <source>Manual ETH Configuration</source>
        <translation>手动 ETH 配置</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Miscellaneous</source>
        <translation>其他</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Enable DHCP</source>
        <translation>启用 DHCP</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Adapter settings</source>
        <translation>适配器设置</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>IP range begin</source>
        <translation>IP 范围起始地址</translation>
    </message>
    <message>
        <location line="-61"/>
        <source>Suggest</source>
        <translation>建议</translation>
    </message>
    <message>
        <location line="+62"/>
        <source>IP range end</source>
        <translation>IP 范围结束地址</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Device settings</source>
        <translation>设备设置</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Persistent IP</source>
        <translation>持久 IP</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Subnetmask</source>
        <translation>子网掩码</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Multicast settings</source>
        <translation>组播设置</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Multicast IP</source>
        <translation>组播 IP</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Enable</source>
        <translation>启用</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Default</source>
        <translation>默认</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Device ID: %1</source>
        <translation>设备 ID：%1</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>The camera has no persistent IP address and uses an address from the IP range</source>
        <translation>相机没有持久 IP 地址，使用 IP 范围中的地址</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The camera uses the persistent IP address</source>
        <translation>相机使用持久 IP 地址</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>Checking IP addresses. Please wait...</source>
        <translation>正在检查 IP 地址，请稍候...</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Checking IP addresses. Please wait...
%1</source>
        <translation>正在检查 IP 地址，请稍候...
%1</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>No free address could be suggested.
%1</source>
        <translation>无法建议空闲地址。
%1</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>Applying settings. Please wait...</source>
        <translation>正在应用设置，请稍候...</translation>
    </message>
    <message>
        <location line="+13"/>
        <location line="+58"/>
        <source>Set persistent IP</source>
        <translation>设置持久 IP</translation>
    </message>
    <message>
        <location line="-13"/>
        <source>Checking whether %1 is free...</source>
        <translation>正在检查 %1 是否空闲...</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>The address %1 is already used by the device with MAC %2.
Do you want to use it anyway?</source>
        <translation>地址 %1 已被 MAC 为 %2 的设备使用。
是否仍要使用？</translation>
    </message>
    <message>
        <location line="+40"/>
        <source>Setting of the persistent IP address or subnetmask failed.
Errorcode: %1</source>
        <translation>设置持久 IP 地址或子网掩码失败。
错误代码：%1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Setting of the automatic configuration range failed.
Errorcode: %1</source>
        <translation>设置自动配置范围失败。
错误代码：%1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Enabling / disabling dhcp failed.
Errorcode: %1</source>
        <translation>启用/禁用 DHCP 失败。
错误代码：%1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Setting Multicast IP failed with code %1.
Likely an invalid IP?</source>
        <translation>设置组播 IP 失败，代码 %1。
可能是无效的 IP？</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Error enabling Multicast
code %1</source>
        <translation>启用组播出错
代码 %1</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <location line="+32"/>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
</context>
<context>
    <name>EthConfigSettings</name>
    <message>
        <location filename="../../src/network/ethconfigsettings.cpp" line="+15"/>
        <source>Applying persistent IP settings...</source>
        <translation>正在应用持久 IP 设置...</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Applying AutoCfg settings...</source>
        <translation>正在应用 AutoCfg 设置...</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Applying DHCP settings...</source>
        <translation>正在应用 DHCP 设置...</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Applying Multicast IP settings...</source>
        <translation>正在应用组播 IP 设置...</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Applying Multicast Enabled settings...</source>
        <translation>正在应用组播启用设置...</translation>
    </message>
    <message>
        <location line="+91"/>
        <source>Done!</source>
        <translation>完成！</translation>
    </message>
</context>
<context>
    <name>EthDaemonConfig</name>
    <message>
        <location filename="../../src/network/ethadaptercontrol.cpp" line="+63"/>
        <source>Setting Packetfilter failed with code %1</source>
        <translation>设置数据包过滤器失败，代码 %1</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Setting 2k Jumbo Packets failed with code %1</source>
        <translation>设置 2k 巨型帧失败，代码 %1</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>The binding is stored, but the ETH service could not look at the adapters again.
Return code: %1</source>
        <translation>绑定已保存，但 ETH 服务无法重新扫描适配器。
返回代码：%1</translation>
    </message>
    <message>
        <location filename="../../src/network/widgets/ethdaemonconfig.cpp" line="+45"/>
        <source>Network configuration</source>
        <translation>网络配置</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Daemon control</source>
        <translation>服务控制</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Network adapters</source>
        <translation>网络适配器</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Network Adapter</source>
        <translation>网络适配器</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Status Text</source>
        <translation>状态文本</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Notes</source>
        <translation>备注</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>MAC address</source>
        <translation>MAC 地址</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>IP address</source>
        <translation>IP 地址</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Subnetmask</source>
        <translation>子网掩码</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Apply IP settings</source>
        <translation>应用 IP 设置</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Activate DHCP</source>
        <translation>启用 DHCP</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Pass all</source>
        <translation>全部通过</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Block CRGET</source>
        <translation>阻止 CRGET</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Block all</source>
        <translation>全部阻止</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Packetfilter</source>
        <translation>数据包过滤器</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Use 2k Jumbo Packets</source>
        <translation>使用 2k 巨型帧</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Disable for this adapter</source>
        <translation>对此适配器禁用</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Network adapter(s)</source>
        <translation>网络适配器</translation>
    </message>
    <message>
        <location line="+33"/>
        <source>service</source>
        <translation>服务</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>To enable/disable the GigE %1 %3 for an adapter, you have to start the %2 with elevated privileges!</source>
        <translation>要为适配器启用/禁用 GigE %1 %3，必须以提升的权限启动 %2！</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Parvel Camera Manager</source>
        <translation>Parvel Camera Manager</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The GigE %1 %3 is currently active on %2 network adapters. It should be enabled for all adapters with GigE %1 cameras connected to and disabled for the others. To enable or disable the %3 for an adapter, select this adapter from the list above and click the &apos;enable/disable GigE %1 %3 for this adapter&apos; button below.</source>
        <translation>GigE %1 %3 当前在 %2 个网络适配器上启用。应为所有连接了 GigE %1 相机的适配器启用该%3，并为其他适配器禁用。要为适配器启用或禁用该%3，请在上方列表中选择该适配器，然后单击下方的“为此适配器启用/禁用 GigE %1 %3”按钮。</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>Please choose a network adapter from the list</source>
        <translation>请从列表中选择一个网络适配器</translation>
    </message>
    <message>
        <location line="+13"/>
        <location line="+24"/>
        <source>Disable for adapter</source>
        <translation>对适配器禁用</translation>
    </message>
    <message>
        <location line="-24"/>
        <location line="+24"/>
        <source>Enable for adapter</source>
        <translation>对适配器启用</translation>
    </message>
    <message>
        <location line="+8"/>
        <location line="+13"/>
        <source>Can&apos;t find interface!</source>
        <translation>找不到接口！</translation>
    </message>
    <message>
        <location line="-7"/>
        <source>Setting static ip failed with code %1</source>
        <translation>设置静态 IP 失败，代码 %1</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Setting DHCP enabled failed with code %1</source>
        <translation>启用 DHCP 失败，代码 %1</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The network adapter is not configured to use packets larger than the normal size of 1,5 KB.

Please set the packet size to at least 2 KB.</source>
        <translation>网络适配器未配置为使用大于 1.5 KB 标准大小的数据包。

请将数据包大小设置为至少 2 KB。</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>Changes on the service failed</source>
        <translation>更改服务失败</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Error stopping the driver!</source>
        <translation>停止驱动程序出错！</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Error starting the driver!</source>
        <translation>启动驱动程序出错！</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>With code: %1</source>
        <translation>代码：%1</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Stop ETH service</source>
        <translation>停止 ETH 服务</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Start ETH service</source>
        <translation>启动 ETH 服务</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>USB driver service started</source>
        <translation>USB 驱动服务已启动</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>USB driver service stopped</source>
        <translation>USB 驱动服务已停止</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Failed</source>
        <translation>失败</translation>
    </message>
</context>
<context>
    <name>EthServiceBindings</name>
    <message>
        <location filename="../../src/network/ethservicebindings.cpp" line="+48"/>
        <source>The ETH service settings in %1 can&apos;t be changed. Restart with elevated privileges!</source>
        <translation>无法更改 %1 中的 ETH 服务设置。请使用提升的权限重新启动！</translation>
    </message>
</context>
<context>
    <name>FirmwareUpload</name>
    <message>
        <location filename="../../src/dialogs/firmwareupload.cpp" line="+57"/>
        <source>The camera&apos;s firmware could not be read back after the upload. Return code: %1</source>
        <translation>上传后无法读回相机的固件。返回代码：%1</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>After the upload the camera runs starter firmware %1, but the driver carries %2.</source>
        <translation>上传后相机运行的是启动固件 %1，但驱动程序附带的是 %2。</translation>
    </message>
</context>
<context>
    <name>FirmwareUploadProgress</name>
    <message>
        <location filename="../../src/dialogs/widgets/firmwareuploadprogress.cpp" line="+8"/>
        <source>Uploading firmware...

Please don&apos;t disconnect the device until this operation is completed.
This may take up to %1 seconds.</source>
        <translation>正在上传固件...

在此操作完成之前，请勿断开设备连接。
这最多可能需要 %1 秒。</translation>
    </message>
    <message numerus="yes">
        <location line="+21"/>
        <source>Elapsed: %n second(s)</source>
        <translation>
            <numerusform>已用时间：%n 秒</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FlagsCtrl</name>
    <message>
        <location filename="../../src/driver/widgets/flagsctrl.cpp" line="+16"/>
        <source>Driver flags</source>
        <translation>驱动程序标志</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Flags</source>
        <translation>标志</translation>
    </message>
</context>
<context>
    <name>FpnCalibration</name>
    <message>
        <location filename="../../src/dialogs/fpncalibration.cpp" line="+12"/>
        <source>The state of the FPN calibration could not be read.</source>
        <translation>无法读取 FPN 校准的状态。</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>The FPN calibration could not be started.</source>
        <translation>无法启动 FPN 校准。</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The FPN calibration could not be cancelled.</source>
        <translation>无法取消 FPN 校准。</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The factory FPN calibration could not be restored.</source>
        <translation>无法恢复出厂 FPN 校准。</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Calibrated on the camera on %1, residual noise %2 DN.</source>
        <translation>于 %1 在相机上校准，残余噪声 %2 DN。</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Factory calibration of %1, residual noise %2 DN.</source>
        <translation>%1 的出厂校准，残余噪声 %2 DN。</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The last calibration was cancelled; the calibration in use stayed.</source>
        <translation>上次校准已取消；当前使用的校准保持不变。</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The last calibration failed (return code: %1).</source>
        <translation>上次校准失败（返回代码：%1）。</translation>
    </message>
</context>
<context>
    <name>GeneralInfoDlg</name>
    <message>
        <location filename="../../src/sysinfo/widgets/generalinfodlg.cpp" line="+28"/>
        <source>General information</source>
        <translation>常规信息</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Drivers</source>
        <translation>驱动程序</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>USB controllers</source>
        <translation>USB 控制器</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Network adapters</source>
        <translation>网络适配器</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Updates</source>
        <translation>更新</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Copy to clipboard</source>
        <translation>复制到剪贴板</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Reading …</source>
        <translation>正在读取 …</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Copied to the clipboard.</source>
        <translation>已复制到剪贴板。</translation>
    </message>
</context>
<context>
    <name>GeneralInformation</name>
    <message>
        <location filename="../../src/sysinfo/generalinformation.cpp" line="+13"/>
        <source>Camera API library</source>
        <translation>相机 API 库</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Kernel module</source>
        <translation>内核模块</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Driver service</source>
        <translation>驱动服务</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Path</source>
        <translation>路径</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>File version</source>
        <translation>文件版本</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Source version</source>
        <translation>源代码版本</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Port %1</source>
        <translation>端口 %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Device</source>
        <translation>设备</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Instance</source>
        <translation>实例</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+26"/>
        <source>Driver</source>
        <translation>驱动程序</translation>
    </message>
    <message>
        <location line="-24"/>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 Mbit/s</source>
        <translation>%1 Mbit/s</translation>
    </message>
    <message numerus="yes">
        <location line="+9"/>
        <source>%n port(s)</source>
        <translation>
            <numerusform>%n 个端口</numerusform>
        </translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>PCI identity</source>
        <translation>PCI 标识</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>no IPv4 address</source>
        <translation>无 IPv4 地址</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>DHCP</source>
        <translation>DHCP</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>static</source>
        <translation>静态</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>MAC address</source>
        <translation>MAC 地址</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>IPv4 address</source>
        <translation>IPv4 地址</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Driver version</source>
        <translation>驱动程序版本</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Driver date</source>
        <translation>驱动程序日期</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Checks for GigE cameras</source>
        <translation>GigE 相机检查</translation>
    </message>
    <message>
        <location line="+30"/>
        <location line="+16"/>
        <source>USB controllers</source>
        <translation>USB 控制器</translation>
    </message>
    <message>
        <location line="-16"/>
        <location line="+1"/>
        <source>still being read</source>
        <translation>仍在读取</translation>
    </message>
    <message>
        <location line="+0"/>
        <location line="+27"/>
        <source>Network adapters</source>
        <translation>网络适配器</translation>
    </message>
    <message>
        <location line="-20"/>
        <source>Drivers</source>
        <translation>驱动程序</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>No USB host controller was found.</source>
        <translation>未找到 USB 主机控制器。</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>No network adapter was found.</source>
        <translation>未找到网络适配器。</translation>
    </message>
</context>
<context>
    <name>HostArpProber</name>
    <message>
        <location filename="../../src/network/hostarpprober_linux.cpp" line="+74"/>
        <location line="+59"/>
        <source>The network adapter %1 is not up.</source>
        <translation>网络适配器 %1 未启用。</translation>
    </message>
    <message>
        <location line="-55"/>
        <source>The network adapter %1 has no link.</source>
        <translation>网络适配器 %1 没有连接。</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The network adapter %1 does not use ARP.</source>
        <translation>网络适配器 %1 不使用 ARP。</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>The network adapter %1 does not hold the address %2/%3.</source>
        <translation>网络适配器 %1 没有地址 %2/%3。</translation>
    </message>
    <message>
        <location line="+44"/>
        <source>Asking for %1 on the network adapter %2 was not permitted: %3</source>
        <translation>不允许在网络适配器 %2 上查询 %1：%3</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The ARP request for %1 on the network adapter %2 failed: %3</source>
        <translation>在网络适配器 %2 上对 %1 的 ARP 请求失败：%3</translation>
    </message>
</context>
<context>
    <name>HostCommand</name>
    <message>
        <location filename="../../src/driver/hostcommand.cpp" line="+30"/>
        <source>%1 is not installed</source>
        <translation>%1 未安装</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>%1 can&apos;t be started: %2</source>
        <translation>无法启动 %1：%2</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>%1 did not answer in time</source>
        <translation>%1 未及时响应</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1 ended abnormally</source>
        <translation>%1 异常结束</translation>
    </message>
</context>
<context>
    <name>HostDriverLog</name>
    <message>
        <location filename="../../src/driver/hostdriverlog_linux.cpp" line="+34"/>
        <source>%1 ended with code %2</source>
        <translation>%1 已结束，代码 %2</translation>
    </message>
    <message>
        <location line="+55"/>
        <source>The driver %1 writes to the journal of its service %2 and to the kernel log.</source>
        <translation>驱动程序 %1 会写入其服务 %2 的 journal 日志和内核日志。</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>the journal of %1</source>
        <translation>%1 的 journal 日志</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The journal can&apos;t be read: %1</source>
        <translation>无法读取 journal 日志：%1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>the kernel log</source>
        <translation>内核日志</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The kernel log can&apos;t be read: %1</source>
        <translation>无法读取内核日志：%1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source> and </source>
        <translation>和</translation>
    </message>
</context>
<context>
    <name>InfoTreeView</name>
    <message>
        <location filename="../../src/sysinfo/widgets/infotreeview.cpp" line="+9"/>
        <source>Item</source>
        <translation>项目</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Value</source>
        <translation>值</translation>
    </message>
</context>
<context>
    <name>IniDocument</name>
    <message>
        <location filename="../../src/common/inidocument.cpp" line="+114"/>
        <source>not text (a control character or invalid UTF-8)</source>
        <translation>不是文本（控制字符或无效的 UTF-8）</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>a group name must stand between [ and ]</source>
        <translation>组名必须位于 [ 和 ] 之间</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>&quot;%1&quot; is neither a [group], a key=value pair nor a comment</source>
        <translation>“%1”既不是 [组]，也不是 键=值 对，也不是注释</translation>
    </message>
</context>
<context>
    <name>IpChangeFollowUp</name>
    <message>
        <location filename="../../src/network/widgets/ipchangefollowup.cpp" line="+43"/>
        <source>Waiting for device %1 to come back with its new network settings...</source>
        <translation>正在等待设备 %1 以新的网络设置恢复连接...</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Device %1 is reachable at %2 after %3 s.</source>
        <translation>设备 %1 在 %3 秒后可通过 %2 访问。</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>The driver does not list the camera any more.</source>
        <translation>驱动程序不再列出该相机。</translation>
    </message>
    <message>
        <location line="+3"/>
        <location line="+30"/>
        <source>Network settings</source>
        <translation>网络设置</translation>
    </message>
    <message>
        <location line="-29"/>
        <source>Device %1 did not come back with its new network settings within %2 s.

%3

Do you want to restore the settings it had before?</source>
        <translation>设备 %1 未在 %2 秒内以新的网络设置恢复连接。

%3

是否恢复之前的设置？</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Restoring the previous network settings of device %1...</source>
        <translation>正在恢复设备 %1 之前的网络设置...</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>The previous network settings of device %1 were restored.</source>
        <translation>设备 %1 之前的网络设置已恢复。</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Restoring the previous network settings of device %1 failed.
Errorcode: %2</source>
        <translation>恢复设备 %1 之前的网络设置失败。
错误代码：%2</translation>
    </message>
</context>
<context>
    <name>LiquidLens</name>
    <message>
        <location filename="../../src/dialogs/liquidlens.cpp" line="+8"/>
        <source>The liquid lens could not be read.</source>
        <translation>无法读取液体镜头。</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The lens takes focal powers from %1 to %2.</source>
        <translation>该镜头支持 %1 到 %2 的光焦度。</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The focal power could not be set.</source>
        <translation>无法设置光焦度。</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>The focal power could not be stored as start-up value.</source>
        <translation>无法将光焦度保存为启动值。</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>%1 dpt</source>
        <translation>%1 dpt</translation>
    </message>
</context>
<context>
    <name>MaintenanceCapabilities</name>
    <message>
        <location filename="../../src/dialogs/maintenancecapabilities.cpp" line="+14"/>
        <source>The camera&apos;s functions could not be read.</source>
        <translation>无法读取相机的功能。</translation>
    </message>
</context>
<context>
    <name>MulticastDialog</name>
    <message>
        <location filename="../../src/dialogs/readonlydevicerequest.cpp" line="+48"/>
        <source>Something went wrong</source>
        <translation>出现错误</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Invalid Parameter</source>
        <translation>无效参数</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Needs more ram</source>
        <translation>需要更多内存</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Maybe not supported for this camera</source>
        <translation>此相机可能不支持</translation>
    </message>
    <message>
        <location filename="../../src/dialogs/widgets/multicastdialog.cpp" line="+19"/>
        <source>Add multicast</source>
        <translation>添加组播</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Refuse incomplete Images</source>
        <translation>拒绝不完整的图像</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Ignore image errors</source>
        <translation>忽略图像错误</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Merge Mode - Release on complete</source>
        <translation>合并模式 - 完整时释放</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Merge Mode - Release on new image</source>
        <translation>合并模式 - 新图像时释放</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Camera ID:</source>
        <translation>相机 ID：</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Error handling:</source>
        <translation>错误处理：</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Add read-only Device</source>
        <translation>添加只读设备</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Errorcode: %1</source>
        <translation>错误代码：%1</translation>
    </message>
</context>
<context>
    <name>NetworkFailure</name>
    <message>
        <location filename="../../src/network/networkfailure.cpp" line="+5"/>
        <source>There is no network adapter &quot;%1&quot;.</source>
        <translation>不存在网络适配器“%1”。</translation>
    </message>
</context>
<context>
    <name>NetworkManagerClient</name>
    <message>
        <location filename="../../src/network/networkmanagerclient_linux.cpp" line="+167"/>
        <source>NetworkManager has no active connection on %1.</source>
        <translation>NetworkManager 在 %1 上没有活动连接。</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>NetworkManager refused the change on %1: %2</source>
        <translation>NetworkManager 拒绝了对 %1 的更改：%2</translation>
    </message>
</context>
<context>
    <name>OpenedCamera</name>
    <message>
        <location filename="../../src/dialogs/openedcamera.cpp" line="+12"/>
        <source>Camera %1 could not be opened.</source>
        <translation>无法打开相机 %1。</translation>
    </message>
</context>
<context>
    <name>ParameterSetFile</name>
    <message>
        <location filename="../../src/dialogs/parametersetfile.cpp" line="+39"/>
        <source>The file &quot;%1&quot; could not be written: %2</source>
        <translation>无法写入文件“%1”：%2</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>The file is incomplete: it ends before its checksum.</source>
        <translation>文件不完整：在校验和之前就已结束。</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The file is no parameter set file (line %1: %2).</source>
        <translation>该文件不是参数集文件（第 %1 行：%2）。</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The file is damaged or incomplete: its checksum does not match its content.</source>
        <translation>文件已损坏或不完整：其校验和与内容不匹配。</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The file holds a parameter set of the model &quot;%1&quot;; this camera is a %2.</source>
        <translation>该文件包含型号“%1”的参数集；此相机是 %2。</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The file holds %1 values; the camera has %2.</source>
        <translation>该文件包含 %1 个值；相机有 %2 个。</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>The file has no valid value for &quot;%1&quot;.</source>
        <translation>该文件没有“%1”的有效值。</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>The file &quot;%1&quot; could not be read: %2</source>
        <translation>无法读取文件“%1”：%2</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The file &quot;%1&quot; is too large for a parameter set.</source>
        <translation>文件“%1”太大，不能作为参数集。</translation>
    </message>
</context>
<context>
    <name>ParameterSets</name>
    <message>
        <location filename="../../src/dialogs/parameterset.cpp" line="+53"/>
        <source>Factory default</source>
        <translation>出厂默认</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>User set %1</source>
        <translation>用户参数集 %1</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>The parameter set &quot;%1&quot; could not be read.</source>
        <translation>无法读取参数集“%1”。</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The parameter set &quot;%1&quot; could not be written.</source>
        <translation>无法写入参数集“%1”。</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1
It has too many values or too long names.</source>
        <translation>%1
其值过多或名称过长。</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>The start-up set could not be read.</source>
        <translation>无法读取启动参数集。</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>&quot;%1&quot; could not be made the start-up set.</source>
        <translation>无法将“%1”设为启动参数集。</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The current settings could not be saved into &quot;%1&quot;.</source>
        <translation>无法将当前设置保存到“%1”。</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>The camera could not be reset to its factory settings.</source>
        <translation>无法将相机恢复为出厂设置。</translation>
    </message>
</context>
<context>
    <name>QCirroCameramanager</name>
    <message>
        <location filename="../../src/app/widgets/qcirrocameramanager.cpp" line="+276"/>
        <source>Camera list</source>
        <translation>相机列表</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Quits the application window</source>
        <translation>关闭应用程序窗口</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Device details</source>
        <translation>设备详细信息</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 Camera Manager</source>
        <translation>%1 相机管理器</translation>
    </message>
    <message>
        <location line="+213"/>
        <source>Open eth configuration...</source>
        <translation>正在打开 ETH 配置...</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>The network adapter of device %1 has no IPv4 address, so there is no subnet to take a range from.</source>
        <translation>设备 %1 的网络适配器没有 IPv4 地址，因此没有可用于获取范围的子网。</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Setting autoconfiguration. Please wait...

This operation may take up to 10 seconds.</source>
        <translation>正在设置自动配置，请稍候...

此操作最多可能需要 10 秒。</translation>
    </message>
    <message>
        <location line="-7"/>
        <location line="+30"/>
        <location line="+2"/>
        <source>Automatic configuration</source>
        <translation>自动配置</translation>
    </message>
    <message>
        <location line="-89"/>
        <source>The camera viewer was not found. Install %1 in a folder of the PATH, or set the viewer&apos;s path as &quot;%2&quot; in %3.</source>
        <translation>未找到相机查看器。请将 %1 安装到 PATH 中的某个文件夹，或在 %3 中将查看器路径设置为“%2”。</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Identifying device %1: it blinks in two seconds ...</source>
        <translation>正在识别设备 %1：设备将在两秒后闪烁 ...</translation>
    </message>
    <message>
        <location line="+73"/>
        <source>Automatic configuration can&apos;t be applied!</source>
        <translation>无法应用自动配置！</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Automatic configuration &amp; Boot boost are not compatible!</source>
        <translation>自动配置与 Boot boost 不兼容！</translation>
    </message>
    <message>
        <location line="+37"/>
        <source>Firmware upload in progress ...</source>
        <translation>正在上传固件 ...</translation>
    </message>
    <message>
        <location line="+24"/>
        <location line="+13"/>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <location line="-13"/>
        <source>Firmware upload error! Return code: %1</source>
        <translation>固件上传出错！返回代码：%1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Firmware upload error! %1</source>
        <translation>固件上传出错！%1</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Firmware upload successful!</source>
        <translation>固件上传成功！</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Device %1: firmware upload successful. The camera now runs starter firmware %2.</source>
        <translation>设备 %1：固件上传成功。相机现在运行启动固件 %2。</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Save support file</source>
        <translation>保存支持文件</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Support file</source>
        <translation>支持文件</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Support files (*.bin)</source>
        <translation>支持文件 (*.bin)</translation>
    </message>
    <message>
        <location line="+10"/>
        <location line="+10"/>
        <source>Delete read-only device</source>
        <translation>删除只读设备</translation>
    </message>
    <message>
        <location line="-9"/>
        <source>Delete the read-only device %1 (camera ID %2)?
The driver forgets it; it comes back only when it is added again with &quot;Add Readonly Device&quot;.</source>
        <translation>删除只读设备 %1（相机 ID %2）？
驱动程序将不再保留该设备；只有通过“添加只读设备”重新添加后，它才会再次出现。</translation>
    </message>
    <message>
        <location line="+41"/>
        <source>The scenario file was not loaded, so the simulated driver shows its built-in cameras: %1</source>
        <translation>场景文件未加载，因此模拟驱动程序显示其内置相机：%1</translation>
    </message>
</context>
<context>
    <name>QDebugOutCtrl</name>
    <message>
        <location filename="../../src/driver/widgets/qdebugoutctrl.cpp" line="+27"/>
        <source>Debug output</source>
        <translation>调试输出</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>Device type</source>
        <translation>设备类型</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>ETH</source>
        <translation>ETH</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>The mask as a hexadecimal number; press Enter to set the boxes from it.</source>
        <translation>以十六进制数表示的掩码；按回车键按其设置复选框。</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Write</source>
        <translation>写入</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Read</source>
        <translation>读取</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Configuration flags</source>
        <translation>配置标志</translation>
    </message>
    <message>
        <location line="+3"/>
        <location line="+2"/>
        <source>Bit %1</source>
        <translation>位 %1</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Driver output</source>
        <translation>驱动程序输出</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Show recent output</source>
        <translation>显示最近输出</translation>
    </message>
    <message>
        <location line="+63"/>
        <source>Permission error</source>
        <translation>权限错误</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Can&apos;t write value. Destination is write-protected. If you have insufficient permission, please run under elevated mode!</source>
        <translation>无法写入值。目标受写保护。如果权限不足，请以提升的权限运行！</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <location filename="../../api/driversettings/debugcategories.cpp" line="+11"/>
        <source>All IOCTL calls</source>
        <translation>All IOCTL calls</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>subsys: transport</source>
        <translation>subsys: transport</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>PnP commands</source>
        <translation>PnP commands</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Power requests</source>
        <translation>Power requests</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Device start/stop</source>
        <translation>Device start/stop</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Driver entry</source>
        <translation>Driver entry</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>commons</source>
        <translation>commons</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cirro messages</source>
        <translation>Cirro messages</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Firmware management</source>
        <translation>Firmware management</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>FX2 stuff</source>
        <translation>FX2 stuff</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Interface high level</source>
        <translation>Interface high level</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Interface low level</source>
        <translation>Interface low level</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>transfer interface</source>
        <translation>transfer interface</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>capture</source>
        <translation>capture</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>thread init exit</source>
        <translation>thread init exit</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>A</source>
        <translation>A</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Boot process</source>
        <translation>Boot process</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Device stuff</source>
        <translation>Device stuff</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>I/O count</source>
        <translation>I/O count</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Function return status</source>
        <translation>Function return status</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>WMI stuff</source>
        <translation>WMI stuff</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Device list</source>
        <translation>Device list</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Trigger stuff</source>
        <translation>Trigger stuff</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>I2C commands</source>
        <translation>I2C commands</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>TimingBoard Rev. 3 FPGA</source>
        <translation>TimingBoard Rev. 3 FPGA</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>SPI</source>
        <translation>SPI</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Remote event manager</source>
        <translation>Remote event manager</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Flash data</source>
        <translation>Flash data</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Memory board</source>
        <translation>Memory board</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>dump object</source>
        <translation>dump object</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Warnings</source>
        <translation>警告</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Errors</source>
        <translation>错误</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>NDIS</source>
        <translation>NDIS</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>transfer requests</source>
        <translation>transfer requests</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>SONY MCB</source>
        <translation>SONY MCB</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>crget dispatcher</source>
        <translation>crget dispatcher</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>cmd channel</source>
        <translation>cmd channel</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>crget upload</source>
        <translation>crget upload</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>message channel</source>
        <translation>message channel</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>stream channel</source>
        <translation>stream channel</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>CRTH</source>
        <translation>CRTH</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>CRTH PRNG</source>
        <translation>CRTH PRNG</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>CRSBET Channel One</source>
        <translation>CRSBET Channel One</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>CRSBET Channel One RX/TX</source>
        <translation>CRSBET Channel One RX/TX</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>eth device mgt</source>
        <translation>eth device mgt</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>eth device</source>
        <translation>eth device</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Reference</source>
        <translation>Reference</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Memory Content</source>
        <translation>Memory Content</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>capeng imgbufmgt</source>
        <translation>capeng imgbufmgt</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>capeng imgbuf</source>
        <translation>capeng imgbuf</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>capeng capctrl</source>
        <translation>capeng capctrl</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>transeng transctrl</source>
        <translation>transeng transctrl</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>camctrl</source>
        <translation>camctrl</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>capeng block mgt</source>
        <translation>capeng block mgt</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>feature</source>
        <translation>feature</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Strch2</source>
        <translation>Strch2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>device management</source>
        <translation>device management</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>test</source>
        <translation>test</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>crget cmd</source>
        <translation>crget cmd</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+1"/>
        <location line="+1"/>
        <location line="+1"/>
        <location line="+1"/>
        <source>unused</source>
        <translation>未使用</translation>
    </message>
</context>
<context>
    <name>RevisionRecord</name>
    <message>
        <location filename="../../src/dialogs/revisionrecord.cpp" line="+17"/>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Date of quality check</source>
        <translation>质检日期</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Manufacturer</source>
        <translation>制造商</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Sensor hardware revision</source>
        <translation>传感器硬件版本</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>USB controller</source>
        <translation>USB 控制器</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Processor</source>
        <translation>处理器</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>DSP firmware</source>
        <translation>DSP 固件</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>USB board</source>
        <translation>USB 板</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Sensor board</source>
        <translation>传感器板</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Processing board</source>
        <translation>处理板</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Memory board</source>
        <translation>存储板</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Housing</source>
        <translation>外壳</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Filter</source>
        <translation>滤光片</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Timing board</source>
        <translation>时序板</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Product revision</source>
        <translation>产品版本</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Logic board</source>
        <translation>逻辑板</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Power board</source>
        <translation>电源板</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>The camera&apos;s revision record could not be read.</source>
        <translation>无法读取相机的修订记录。</translation>
    </message>
</context>
<context>
    <name>ServiceManager</name>
    <message>
        <location filename="../../src/services/servicemanager.cpp" line="+27"/>
        <source>The service %1 is not installed.</source>
        <translation>服务 %1 未安装。</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The service %1 could not be started: %2</source>
        <translation>无法启动服务 %1：%2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The service %1 could not be stopped: %2</source>
        <translation>无法停止服务 %1：%2</translation>
    </message>
</context>
<context>
    <name>ServiceSettingsFile</name>
    <message>
        <location filename="../../src/common/servicesettingsfile.cpp" line="+41"/>
        <source>The settings file %1 can&apos;t be used: %2</source>
        <translation>无法使用设置文件 %1：%2</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>it is not a regular file</source>
        <translation>它不是普通文件</translation>
    </message>
    <message>
        <location line="+2"/>
        <location line="+6"/>
        <source>it is larger than %1 KB</source>
        <translation>它大于 %1 KB</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>line %1: %2</source>
        <translation>第 %1 行：%2</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>The settings file %1 is write-protected.</source>
        <translation>设置文件 %1 受写保护。</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>The settings file %1 holds &quot;%2&quot; in line %3 where a number belongs.</source>
        <translation>设置文件 %1 的第 %3 行应为数字，却是“%2”。</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>The settings file %1 could not be written: %2</source>
        <translation>无法写入设置文件 %1：%2</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>its directory could not be created</source>
        <translation>无法创建其目录</translation>
    </message>
</context>
<context>
    <name>SettingsFileNotice</name>
    <message>
        <location filename="../../src/driver/widgets/settingsfilenotice.cpp" line="+30"/>
        <source>The drivers&apos; settings files in %1 are shown but can&apos;t be changed: restart with elevated privileges!</source>
        <translation>%1 中的驱动程序设置文件仅供查看，无法更改：请以提升的权限重新启动！</translation>
    </message>
</context>
<context>
    <name>SimulatedAdapters</name>
    <message>
        <location filename="../../src/network/simulatedadapters.cpp" line="+118"/>
        <source>Simulated GigE adapter</source>
        <translation>模拟 GigE 适配器</translation>
    </message>
</context>
<context>
    <name>SimulatedArpProber</name>
    <message>
        <location filename="../../src/network/simulatedarpprober.cpp" line="+33"/>
        <source>The simulated driver refused %1 as a target on adapter %2.</source>
        <translation>模拟驱动程序拒绝将 %1 作为适配器 %2 上的目标。</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The simulated driver&apos;s ARP request for %1 on adapter %2 failed with code %3.</source>
        <translation>模拟驱动程序在适配器 %2 上对 %1 的 ARP 请求失败，代码 %3。</translation>
    </message>
</context>
<context>
    <name>SimulatedServiceManager</name>
    <message>
        <location filename="../../src/services/simulatedservicemanager.cpp" line="+32"/>
        <source>the simulated driver refused with code %1.</source>
        <translation>模拟驱动程序拒绝了请求，代码为 %1。</translation>
    </message>
</context>
<context>
    <name>StatusPanel</name>
    <message>
        <location filename="../../src/app/widgets/statuspanel.cpp" line="+112"/>
        <source>The %1 Camera Manager is running with root privileges!</source>
        <translation>%1 相机管理器正在以 root 权限运行！</translation>
    </message>
</context>
<context>
    <name>StatusTexts</name>
    <message>
        <location filename="../../src/camera/statusassessment.cpp" line="+24"/>
        <source>You have opened the camera</source>
        <translation>您已打开此相机</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>This camera does not support Fullspeed USB.</source>
        <translation>此相机不支持全速 USB。</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>An upload of the camera firmware is not possible. The hardware of your camera is probably not compatible to the installed %1 driver. Your hardware is not supported by driver versions higher than 3.00.</source>
        <translation>无法上传相机固件。您的相机硬件可能与已安装的 %1 驱动程序不兼容。高于 3.00 的驱动程序版本不支持您的硬件。</translation>
    </message>
    <message>
        <location line="+6"/>
        <source> In addition, the camera does not support Fullspeed USB.</source>
        <translation> 此外，该相机不支持全速 USB。</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Status of device %1: The camera cannot be opened because it is running with service firmware. Either start the camera in runtime using the &quot;parvel_devicecommand&quot; tool (--reset-to-runtime) or update the camera firmware, e.g. using the &quot;parvel_deviceupdate&quot; tool.
</source>
        <translation>设备 %1 的状态：相机正在使用服务固件运行，因此无法打开。请使用 &quot;parvel_devicecommand&quot; 工具 (--reset-to-runtime) 以运行时固件启动相机，或者更新相机固件，例如使用 &quot;parvel_deviceupdate&quot; 工具。
</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The camera is using an invalid IP range and can&apos;t be opened. Please use the &apos;Manual ETH configuration&apos; button to set a valid IP address.</source>
        <translation>相机使用的 IP 范围无效，无法打开。请使用“手动 ETH 配置”按钮设置有效的 IP 地址。</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Internal driver error. Please reinstall the %1 setup.</source>
        <translation>驱动程序内部错误。请重新运行 %1 安装程序。</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Waiting for %1.</source>
        <translation>正在等待 %1。</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Internal device error. Please upload a new starter firmware.</source>
        <translation>设备内部错误。请上传新的启动固件。</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Internal device error. The runtime firmware is corrupted.</source>
        <translation>设备内部错误。运行时固件已损坏。</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The device is not compatible to the driver. Please upload a new starter firmware.</source>
        <translation>设备与驱动程序不兼容。请上传新的启动固件。</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The network adapter is configured to use DHCP. Please assign a static IP address and subnetmask via the dialog &apos;Manual ETH configuration&apos;. DHCP will be deactivated automatically.</source>
        <translation>网络适配器已配置为使用 DHCP。请通过“手动 ETH 配置”对话框分配静态 IP 地址和子网掩码。DHCP 将自动停用。</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The camera is not configured properly. Please use the &apos;Manual ETH configuration&apos; or &apos;Automatic ETH configuration&apos; button to set a IP address. Or enable the camera DHCP client if a DHCP server is available.</source>
        <translation>相机配置不正确。请使用“手动 ETH 配置”或“自动 ETH 配置”按钮设置 IP 地址。如果有可用的 DHCP 服务器，也可以启用相机的 DHCP 客户端。</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The network adapter is not configured to use packets larger than the normal size of 1,5 KB.Please set the packet size to at least 2 KB.</source>
        <translation>网络适配器未配置为使用超过常规大小 (1.5 KB) 的数据包。请将数据包大小设置为至少 2 KB。</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Firmware image is not available or corrupted. Please reinstall the %1 setup.</source>
        <translation>固件映像不可用或已损坏。请重新运行 %1 安装程序。</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The starter firmware of the camera is incompatible to the driver.
An automatic upload will be initiated next time you open the camera. This upload will take several seconds. Do not switch off the power supply and do not unplug the camera! It is strongly recommended to upload the firmware over the button &apos;Starter Firmware Upload&apos;. The requested starter firmware version is %1.%2.%3</source>
        <translation>相机的启动固件与驱动程序不兼容。
下次打开相机时将自动开始上传，上传需要几秒钟。请勿关闭电源，也不要拔下相机！强烈建议通过“上传启动固件”按钮上传固件。所需的启动固件版本为 %1.%2.%3</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Status of device %1: The camera is currently running in the boot boost mode. It is configured correctly and can be opened.</source>
        <translation>设备 %1 的状态：相机当前正在 Boot Boost 模式下运行。相机配置正确，可以打开。</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>The camera is being used by another host and cannot be opened at the moment.</source>
        <translation>相机正被另一台主机使用，目前无法打开。</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The camera is not opened by another host and cannot be opened at the moment.</source>
        <translation>相机未被其他主机打开，目前无法打开。</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Transfer failed (Errorcode: %1): API DLL or kernel driver incompatible. Please reinstall the setup.</source>
        <translation>传输失败（错误代码：%1）：API DLL 或内核驱动程序不兼容。请重新运行安装程序。</translation>
    </message>
    <message>
        <location line="+47"/>
        <source>Status of device %1: %2</source>
        <translation>设备 %1 的状态：%2</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Status of device %1: The camera is configured correctly and can be opened.</source>
        <translation>设备 %1 的状态：相机配置正确，可以打开。</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Status of device %1: The camera is configured correctly and can be opened. Please note that this device currently is using a lower speed than supported by it.</source>
        <translation>设备 %1 的状态：相机配置正确，可以打开。请注意，此设备当前的运行速度低于其支持的速度。</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>No camera list available</source>
        <translation>无可用的相机列表</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>The device is of a kind that this version of the Camera Manager does not know, so it can&apos;t be used here.</source>
        <translation>此版本的相机管理器无法识别该设备类型，因此无法在此使用该设备。</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Attention: You are using a camera model which is no longer supported by the current driver version.</source>
        <translation>注意：您使用的相机型号已不再受当前驱动程序版本支持。</translation>
    </message>
</context>
<context>
    <name>SupportFileDialog</name>
    <message>
        <location filename="../../src/supportfile/supportfileoutline.cpp" line="+128"/>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>ETH</source>
        <translation>ETH</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>VPE</source>
        <translation>VPE</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>No %1 Cameras</source>
        <translation>无 %1 相机</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 Cameras</source>
        <translation>%1 相机</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Used</source>
        <translation>已使用</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Unused</source>
        <translation>未使用</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Model</source>
        <translation>型号</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Serial</source>
        <translation>序列号</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>InUse</source>
        <translation>使用中</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>CamID</source>
        <translation>相机 ID</translation>
    </message>
    <message>
        <location line="+10"/>
        <location line="+69"/>
        <location line="+63"/>
        <source>Device</source>
        <translation>设备</translation>
    </message>
    <message>
        <location line="-131"/>
        <location line="+69"/>
        <location line="+61"/>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <location line="-129"/>
        <location line="+97"/>
        <source>Sensor ID</source>
        <translation>传感器 ID</translation>
    </message>
    <message>
        <location line="-96"/>
        <source>Device type</source>
        <translation>设备类型</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+75"/>
        <source>Camera temperature</source>
        <translation>相机温度</translation>
    </message>
    <message>
        <location line="-74"/>
        <location line="+70"/>
        <source>Starter firmware version</source>
        <translation>启动固件版本</translation>
    </message>
    <message>
        <location line="-68"/>
        <location line="+66"/>
        <source>Runtime firmware version</source>
        <translation>运行时固件版本</translation>
    </message>
    <message>
        <location line="-64"/>
        <source>Starter libshared version</source>
        <translation>启动 libshared 版本</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Runtime libshared version</source>
        <translation>运行时 libshared 版本</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Memcontent list version</source>
        <translation>Memcontent 列表版本</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Cypress SDK version libshared</source>
        <translation>Cypress SDK 版本 libshared</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Cypress SDK version</source>
        <translation>Cypress SDK 版本</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+106"/>
        <source>Link</source>
        <translation>链路</translation>
    </message>
    <message>
        <location line="-105"/>
        <source>Link Speed</source>
        <translation>链路速度</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>High-Speed (USB 2.0)</source>
        <translation>高速 (USB 2.0)</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Super-Speed (USB 3.0)</source>
        <translation>超高速 (USB 3.0)</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Missed Heartbeat Counter</source>
        <translation>丢失心跳计数器</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Reference Counter</source>
        <translation>引用计数器</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Last ACK message</source>
        <translation>最后一条 ACK 消息</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Last received heartbeat</source>
        <translation>最后接收的心跳</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Last received message</source>
        <translation>最后接收的消息</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Reference Flags</source>
        <translation>引用标志</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Control State</source>
        <translation>控制状态</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+40"/>
        <source>COM Port number</source>
        <translation>COM 端口号</translation>
    </message>
    <message>
        <location line="-39"/>
        <location line="+14"/>
        <source>Local driver</source>
        <translation>本地驱动程序</translation>
    </message>
    <message>
        <location line="-13"/>
        <source>USB version</source>
        <translation>USB 版本</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+14"/>
        <source>Min. compatible starter FW</source>
        <translation>最低兼容启动固件</translation>
    </message>
    <message>
        <location line="-12"/>
        <location line="+14"/>
        <source>Max. compatible starter FW</source>
        <translation>最高兼容启动固件</translation>
    </message>
    <message>
        <location line="-3"/>
        <source>ETH version</source>
        <translation>ETH 版本</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Transfer</source>
        <translation>传输</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Failsafe firmware version</source>
        <translation>故障安全固件版本</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>User EEPROM (8 chars)</source>
        <translation>用户 EEPROM（8 个字符）</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>hardware revision</source>
        <translation>硬件版本</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>last message ID</source>
        <translation>最后一条消息 ID</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>last heartbeat message ID</source>
        <translation>最后一条心跳消息 ID</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>last ACK message ID</source>
        <translation>最后一条 ACK 消息 ID</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>missed heartbeats</source>
        <translation>丢失的心跳</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>watchdog skip count</source>
        <translation>看门狗跳过计数</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>reference flags</source>
        <translation>引用标志</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>atomic reference count</source>
        <translation>原子引用计数</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>deviceinfo flags</source>
        <translation>deviceinfo 标志</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Device statusflags</source>
        <translation>设备状态标志</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Control statusflags</source>
        <translation>控制状态标志</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Hardware</source>
        <translation>硬件</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Image memory size</source>
        <translation>图像存储器大小</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Temperature sensor</source>
        <translation>温度传感器</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>invalid - temp. sensor defect!</source>
        <translation>无效 - 温度传感器故障！</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>invalid - temp. sensor to high!</source>
        <translation>无效 - 温度传感器读数过高！</translation>
    </message>
    <message>
        <location line="+3"/>
        <location line="+31"/>
        <source>Network</source>
        <translation>网络</translation>
    </message>
    <message>
        <location line="-30"/>
        <location line="+31"/>
        <source>MAC address</source>
        <translation>MAC 地址</translation>
    </message>
    <message>
        <location line="-30"/>
        <source>Current IP address</source>
        <translation>当前 IP 地址</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Persistent IP address</source>
        <translation>持久 IP 地址</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Persistent IP subnetmask</source>
        <translation>持久 IP 子网掩码</translation>
    </message>
    <message>
        <location line="+2"/>
        <location line="+29"/>
        <source>IP range begin</source>
        <translation>IP 范围起始地址</translation>
    </message>
    <message>
        <location line="-28"/>
        <location line="+29"/>
        <source>IP range end</source>
        <translation>IP 范围结束地址</translation>
    </message>
    <message>
        <location line="-28"/>
        <source>Paired host MAC</source>
        <translation>已配对主机的 MAC</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Paired host IP</source>
        <translation>已配对主机的 IP</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Multicast IP</source>
        <translation>组播 IP</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Local network adapter</source>
        <translation>本地网络适配器</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Designation</source>
        <translation>名称</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Driver version</source>
        <translation>驱动程序版本</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Driver date</source>
        <translation>驱动程序日期</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>DHCP enabled</source>
        <translation>DHCP 已启用</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Number of known devices</source>
        <translation>已知设备数</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Number of paired devices</source>
        <translation>已配对设备数</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>IP address</source>
        <translation>IP 地址</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>IP subnetmask</source>
        <translation>IP 子网掩码</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>IP range valid</source>
        <translation>IP 范围有效</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Packetfilter</source>
        <translation>数据包过滤器</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Passive Multicast</source>
        <translation>被动组播</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Debug info</source>
        <translation>调试信息</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Statistics</source>
        <translation>统计信息</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Reserved heartbeat</source>
        <translation>保留（心跳）</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Reserved device</source>
        <translation>保留（设备）</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Reserved adapter</source>
        <translation>保留（适配器）</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Reserved driver</source>
        <translation>保留（驱动程序）</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Drivers</source>
        <translation>驱动程序</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Path:</source>
        <translation>路径：</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>File Version:</source>
        <translation>文件版本：</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+20"/>
        <source>Product Version:</source>
        <translation>产品版本：</translation>
    </message>
    <message>
        <location line="-8"/>
        <source>System Information</source>
        <translation>系统信息</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Product name:</source>
        <translation>产品名称：</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Architecture:</source>
        <translation>架构：</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Build-Arch:</source>
        <translation>构建架构：</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Hostname:</source>
        <translation>主机名：</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Number of Processors:</source>
        <translation>处理器数量：</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Active Processors:</source>
        <translation>活动处理器：</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>OS Version Info:</source>
        <translation>操作系统版本信息：</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Network adapter</source>
        <translation>网络适配器</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Driver Info:</source>
        <translation>驱动程序信息：</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Driver Version: </source>
        <translation>驱动程序版本： </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Driver Date:</source>
        <translation>驱动程序日期：</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>MAC:</source>
        <translation>MAC：</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>IP Address:</source>
        <translation>IP 地址：</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Subnetmask:</source>
        <translation>子网掩码：</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>DHCP:</source>
        <translation>DHCP：</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>USB Controller</source>
        <translation>USB 控制器</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Parvel Summit compatibility mode</source>
        <translation>Parvel Summit 兼容模式</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Enabled:</source>
        <translation>已启用：</translation>
    </message>
    <message>
        <location filename="../../src/supportfile/widgets/supportfiledialog.cpp" line="+25"/>
        <source>Support file %1</source>
        <translation>支持文件 %1</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Shown is what could be read before.</source>
        <translation>显示的是此前能够读取的内容。</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Serial numbers, MAC addresses and the host name in this file are pseudonyms.</source>
        <translation>此文件中的序列号、MAC 地址和主机名均为化名。</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Key</source>
        <translation>键</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+59"/>
        <location line="+6"/>
        <source>Export as INI</source>
        <translation>导出为 INI</translation>
    </message>
    <message>
        <location line="-63"/>
        <location line="+57"/>
        <location line="+6"/>
        <source>Export as JSON</source>
        <translation>导出为 JSON</translation>
    </message>
    <message>
        <location line="-15"/>
        <source>%1 can&apos;t be written: %2.</source>
        <translation>无法写入 %1：%2。</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>INI file (*.ini)</source>
        <translation>INI 文件 (*.ini)</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>JSON file (*.json)</source>
        <translation>JSON 文件 (*.json)</translation>
    </message>
</context>
<context>
    <name>SupportFileReader</name>
    <message>
        <location filename="../../src/supportfile/supportfilereader.cpp" line="+40"/>
        <source>The support file %1 can&apos;t be opened: %2.</source>
        <translation>无法打开支持文件 %1：%2。</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 is too large to be a support file (%2 bytes).</source>
        <translation>%1 太大，不可能是支持文件（%2 字节）。</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The support file %1 is empty.</source>
        <translation>支持文件 %1 为空。</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The support file %1 is damaged: line %2 is not a number from 0 to 65535.</source>
        <translation>支持文件 %1 已损坏：第 %2 行不是 0 到 65535 之间的数字。</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>The support file %1 is damaged: line %2 of its text is not a section or a key (%3).</source>
        <translation>支持文件 %1 已损坏：其文本的第 %2 行既不是节也不是键（%3）。</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>The support file %1 holds no sections.</source>
        <translation>支持文件 %1 不包含任何节。</translation>
    </message>
</context>
<context>
    <name>SupportFileSaveDialog</name>
    <message>
        <location filename="../../src/supportfile/widgets/supportfilesavedialog.cpp" line="+7"/>
        <source>Save support file</source>
        <translation>保存支持文件</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Support file (*.bin)</source>
        <translation>支持文件 (*.bin)</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Replace serial numbers, MAC addresses and the host name by pseudonyms</source>
        <translation>用化名替换序列号、MAC 地址和主机名</translation>
    </message>
</context>
<context>
    <name>SupportFileWriter</name>
    <message>
        <location filename="../../src/supportfile/supportfilewriter.cpp" line="+64"/>
        <source>Hub</source>
        <translation>集线器</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Controller</source>
        <translation>控制器</translation>
    </message>
    <message>
        <location line="+103"/>
        <source>The support file %1 can&apos;t be written: %2.</source>
        <translation>无法写入支持文件 %1：%2。</translation>
    </message>
</context>
<context>
    <name>SystemdServiceManager</name>
    <message>
        <location filename="../../src/services/systemdservicemanager_linux.cpp" line="+77"/>
        <source>there is no connection to D-Bus (%1).</source>
        <translation>未连接到 D-Bus (%1)。</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>systemd does not run on this system.</source>
        <translation>此系统未运行 systemd。</translation>
    </message>
</context>
<context>
    <name>TraceFileTail</name>
    <message>
        <location filename="../../src/driver/tracefiletail.cpp" line="+17"/>
        <source>There is no trace file %1 yet.</source>
        <translation>跟踪文件 %1 尚不存在。</translation>
    </message>
    <message>
        <location line="+15"/>
        <location line="+10"/>
        <source>The trace file %1 can&apos;t be read: %2</source>
        <translation>无法读取跟踪文件 %1：%2</translation>
    </message>
</context>
<context>
    <name>UpdateCheck</name>
    <message>
        <location filename="../../src/sysinfo/updatecheck.cpp" line="+42"/>
        <source>The update address &quot;%1&quot; is not an http or https address.</source>
        <translation>更新地址“%1”不是 http 或 https 地址。</translation>
    </message>
    <message numerus="yes">
        <location line="+51"/>
        <source>The update server did not answer within %n second(s).</source>
        <translation>
            <numerusform>更新服务器未在 %n 秒内应答。</numerusform>
        </translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The update document is larger than %1 kB and was not read.</source>
        <translation>更新文档大于 %1 kB，未读取。</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The check for updates was cancelled.</source>
        <translation>更新检查已取消。</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>The update server answered %1 %2.</source>
        <translation>更新服务器返回 %1 %2。</translation>
    </message>
    <message numerus="yes">
        <location line="+5"/>
        <source>The update address redirects more than %n time(s).</source>
        <translation>
            <numerusform>更新地址的重定向次数超过 %n 次。</numerusform>
        </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The update server redirects from https to an unencrypted address; the redirect was not followed.</source>
        <translation>更新服务器从 https 重定向到未加密的地址；未跟随该重定向。</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The update server could not be reached (%1). Check the network connection and the update address.</source>
        <translation>无法连接到更新服务器（%1）。请检查网络连接和更新地址。</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The update document could not be fetched: %1</source>
        <translation>无法获取更新文档：%1</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Version %1 is available; version %2 is installed.</source>
        <translation>版本 %1 可用；已安装版本 %2。</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Version %1 is the latest version.</source>
        <translation>版本 %1 是最新版本。</translation>
    </message>
</context>
<context>
    <name>UpdateDocument</name>
    <message>
        <location filename="../../src/sysinfo/updatedocument.cpp" line="+15"/>
        <source>The update document&apos;s notes are not a list of texts by language.</source>
        <translation>更新文档中的说明不是按语言排列的文本列表。</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The update document&apos;s notes for &quot;%1&quot; are not a text.</source>
        <translation>更新文档中“%1”的说明不是文本。</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>The update document is not valid JSON: %1 (at byte %2).</source>
        <translation>更新文档不是有效的 JSON：%1（位于字节 %2）。</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The update document is not a JSON object.</source>
        <translation>更新文档不是 JSON 对象。</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The update document has no format number.</source>
        <translation>更新文档没有格式编号。</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The update document has the format %1; this version reads format %2.</source>
        <translation>更新文档的格式为 %1；此版本读取格式 %2。</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>The update document names no latest version.</source>
        <translation>更新文档未指明最新版本。</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The update document&apos;s latest version &quot;%1&quot; is not a version number such as 4.98.0.0.</source>
        <translation>更新文档中的最新版本“%1”不是类似 4.98.0.0 的版本号。</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>(not a text)</source>
        <translation>（不是文本）</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The update document&apos;s download page &quot;%1&quot; is not an http or https address.</source>
        <translation>更新文档中的下载页面“%1”不是 http 或 https 地址。</translation>
    </message>
</context>
<context>
    <name>UpdatesPage</name>
    <message>
        <location filename="../../src/sysinfo/widgets/updatespage.cpp" line="+17"/>
        <source>https://… address of the update document</source>
        <translation>https://… 更新文档的地址</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+60"/>
        <source>Check for updates</source>
        <translation>检查更新</translation>
    </message>
    <message>
        <location line="-58"/>
        <source>The program asks for updates only when you press &quot;Check for updates&quot;.</source>
        <translation>仅当您点击“检查更新”时，程序才会查询更新。</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Installed version:</source>
        <translation>已安装版本：</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Update address:</source>
        <translation>更新地址：</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>No update address is set. Enter the address of the update document that your supplier gave you.</source>
        <translation>未设置更新地址。请输入供应商提供给您的更新文档地址。</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Asking %1 …</source>
        <translation>正在查询 %1 …</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Open the download page</source>
        <translation>打开下载页面</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Updates</source>
        <translation>更新</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Installed version</source>
        <translation>已安装版本</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Update address</source>
        <translation>更新地址</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Last check</source>
        <translation>上次检查</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Download page</source>
        <translation>下载页面</translation>
    </message>
</context>
<context>
    <name>UsbTopology</name>
    <message>
        <location filename="../../src/details/usbtopology_linux.cpp" line="+85"/>
        <source>USB Root Hub</source>
        <translation>USB 根集线器</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>USB Root Hub (USB %1)</source>
        <translation>USB 根集线器 (USB %1)</translation>
    </message>
    <message>
        <location line="+160"/>
        <source>unkown</source>
        <translation>未知</translation>
    </message>
</context>
<context>
    <name>UserEeprom</name>
    <message>
        <location filename="../../src/dialogs/usereeprom.cpp" line="+31"/>
        <source>&quot;%1&quot; at position %2 is no hexadecimal digit.</source>
        <translation>位置 %2 处的“%1”不是十六进制数字。</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Each byte needs two hexadecimal digits; the last one has only one.</source>
        <translation>每个字节需要两位十六进制数字；最后一个字节只有一位。</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>The text may hold printable ASCII characters only; &quot;%1&quot; at position %2 is none.</source>
        <translation>文本只能包含可打印的 ASCII 字符；位置 %2 处的“%1”不是。</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>The user EEPROM holds %1 bytes; %2 bytes don&apos;t fit. Nothing was written.</source>
        <translation>用户 EEPROM 可容纳 %1 字节，%2 字节放不下。未写入任何内容。</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>The user EEPROM could not be read.</source>
        <translation>无法读取用户 EEPROM。</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>The user EEPROM could not be written.</source>
        <translation>无法写入用户 EEPROM。</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <location filename="../../src/app/apiversioncheck.cpp" line="+18"/>
        <source>%4 Camera Manager %1 doesn&apos;t work with
lib%4_api &lt; %2.%3!
use a newer lib%4!</source>
        <translation>%4 相机管理器 %1 无法与
lib%4_api &lt; %2.%3 配合使用！
请使用更新版本的 lib%4！</translation>
    </message>
    <message>
        <location filename="../../src/app/commandline.cpp" line="+9"/>
        <source>Open Additional functions</source>
        <translation>打开附加功能</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Open Daemon control</source>
        <translation>打开守护进程控制</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 Camera Manager command line helper</source>
        <translation>%1 相机管理器命令行帮助</translation>
    </message>
    <message>
        <location filename="../../src/app/identity.cpp" line="+29"/>
        <source>%1 Camera Manager</source>
        <translation>%1 相机管理器</translation>
    </message>
    <message>
        <location filename="../../src/app/widgets/startup.cpp" line="+46"/>
        <source>The camera driver refused the camera list&apos;s device events.
Return code: %1</source>
        <translation>相机驱动程序拒绝了相机列表的设备事件。
返回代码：%1</translation>
    </message>
    <message>
        <location line="+39"/>
        <source>%1: there is no display to show the window on (DISPLAY is not set).</source>
        <translation>%1：没有可用于显示窗口的显示器（未设置 DISPLAY）。</translation>
    </message>
</context>
</TS>
